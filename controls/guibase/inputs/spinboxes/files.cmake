# SPDX-License-Identifier: MIT
guibase_room(inputs/spinboxes
    PUBLIC
        abstractspinbox.cpp abstractspinbox.h
        frequencyspinbox.cpp frequencyspinbox.h
        numberspinboxbase.cpp numberspinboxbase.h
        qdatetimespinbox.cpp qdatetimespinbox.h
        spinboxbase.cpp spinboxbase.h
        spinboxes.cpp spinboxes.h
    INTERNAL
        digitatcursor.cpp digitatcursor_p.h)
