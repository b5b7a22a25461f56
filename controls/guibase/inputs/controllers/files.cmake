# SPDX-License-Identifier: MIT
guibase_room(inputs/controllers
    PUBLIC
        abstractcontroller.cpp abstractcontroller.h
        controllerdial.cpp controllerdial.h
        controllerslider.cpp controllerslider.h
    INTERNAL
        accessiblecontroller.cpp accessiblecontroller_p.h
        controllerscale.cpp controllerscale_p.h)
