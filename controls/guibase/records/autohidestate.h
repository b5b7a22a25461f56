// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

/// What is kept of a main window's auto-hidden docks; the record is described at
/// AutoHideSupport::saveState().
struct AutoHideState
{
    /// The sides of the docks in the mode (left or right), by object name.
    QMap<QString, Qt::ToolBarArea> sides;
    bool popupOnHover = true;

    QByteArray toBytes() const;
    /// Nothing for anything but a whole record.
    static std::optional<AutoHideState> fromBytes(const QByteArray& bytes);
    /// The same as the text that the configuration holds.
    QString toText() const;
    static std::optional<AutoHideState> fromText(const QString& text);
};
