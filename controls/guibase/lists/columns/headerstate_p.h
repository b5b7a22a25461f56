// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QtCore/qnamespace.h>

#include <optional>

class QHeaderView;

/// What QHeaderView::saveState() writes, read without the toolkit, which trusts the counts in a
/// state, reserves memory for them, and gives a header more sections than its model has.
struct HeaderState
{
    struct Section
    {
        int size = 0; ///< In pixels; of a hidden section what it had before.
        int place = 0;
        bool isHidden = false;
    };

    QList<Section> sections;
    int sortSection = 0;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;

    /// Nothing for bytes that are no whole state of a header in this orientation, or one with more
    /// than 4096 sections.
    static std::optional<HeaderState> fromBytes(const QByteArray& bytes,
                                                Qt::Orientation orientation);
    /// Arranges the header's sections from `first` on, as far as the state knows them; those before
    /// it stay as they are.
    void applyTo(QHeaderView& header, int first) const;
};
