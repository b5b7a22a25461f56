# SPDX-License-Identifier: MIT
guibase_room(colors
    PUBLIC
        colorcontrast.cpp colorcontrast.h
        colordefinition.cpp colordefinition.h
        colordefinitionset.cpp colordefinitionset.h
        colors.cpp colors.h
        colorset.cpp colorset.h
        colorsetcodec.cpp colorsetcodec.h
        colorslotgroups.h
        icolorbase.cpp icolorbase.h
        ihaspropertypage.cpp ihaspropertypage.h
        usercolors.cpp usercolors.h
    INTERNAL
        colorcatalogue_p.h
        colorsetbuiltin.cpp colorsetbuiltin.h
        colorsetfactory_p.h
        colorsetfile.cpp colorsetfile_p.h
        signaltypenames.cpp signaltypenames.h)
