// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Stores what there is when the X server or the Wayland compositor goes. The toolkit then ends the
/// program without telling anybody; all it does before is to print a warning, from any thread,
/// which is the sign here. One object at a time, in the thread of the application object.
class ServerEnd
{
public:
    ServerEnd();
    /// Brings the former message handler back, unless somebody has put another one before it.
    ~ServerEnd();
    Q_DISABLE_COPY_MOVE(ServerEnd)
};
