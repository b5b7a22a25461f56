// SPDX-License-Identifier: MIT
// Carries the precompiled headers; nothing stands here.
