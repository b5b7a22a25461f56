# SPDX-License-Identifier: MIT
guibase_room(formats OBJECT
    PUBLIC
        displayaffix.cpp displayaffix.h
        displayformatlist.cpp displayformatlist.h
        displayformattext.cpp displayformattext.h
        frequencydisplayformat.cpp frequencydisplayformat.h
        integralnumberdisplayformat.cpp integralnumberdisplayformat.h
        numberdisplayformatbase.cpp numberdisplayformatbase.h
        qdatetimedisplayformat.cpp qdatetimedisplayformat.h
        realnumberdisplayformat.cpp realnumberdisplayformat.h
        valuedisplayformatbase.cpp valuedisplayformatbase.h
    INTERNAL
        datetimereader.cpp datetimereader_p.h
        datetimesections.cpp datetimesections.h
        numbertext.cpp numbertext_p.h
        typednumber.cpp typednumber_p.h)
