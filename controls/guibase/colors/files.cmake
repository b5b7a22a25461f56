# SPDX-License-Identifier: MIT
set(colors_headers)
set(colors_sources)
