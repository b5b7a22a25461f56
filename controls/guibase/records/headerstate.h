// SPDX-License-Identifier: MIT
#pragma once

#include "columntext.h"

#include <QByteArray>
#include <QList>
#include <QtCore/qnamespace.h>

#include <optional>

/// What QHeaderView::saveState() writes, read without the toolkit, which trusts the counts in a
/// state, reserves memory for them, and gives a header more sections than its model has.
struct HeaderState
{
    QByteArray bytes;
    QList<ColumnRecord> sections;
    int sortSection = 0;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;

    /// Nothing for bytes that are no whole state of a header in this orientation, or one with more
    /// than 4096 sections.
    static std::optional<HeaderState> fromBytes(const QByteArray& bytes,
                                                Qt::Orientation orientation);
    /// The same for a base64 text of at most `maximumTextSize` characters.
    static std::optional<HeaderState> fromText(const QString& text, Qt::Orientation orientation);

    static constexpr qsizetype maximumTextSize = 1 << 20;
};
