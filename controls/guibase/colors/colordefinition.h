// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QColor>
#include <QString>

/// One entry of the colour catalogue: a colour with its id. A value.
class GUIBASE_EXPORT ColorDefinition
{
public:
    /// Black, colour string "#000000", id -1.
    ColorDefinition();
    /// `alpha` from 0 (transparent) to 255; values outside are cut to that range. The colour
    /// string is the colour's name() without the alpha.
    ColorDefinition(const QColor& color, qint32 id, int alpha = 255);
    /// `text` is anything that QColor reads, and is kept as the colour string. A text that is no
    /// colour gives an invalid colour.
    ColorDefinition(const QString& text, qint32 id, int alpha = 255);

    /// Colour, its text for files and editors, and its number in the catalogue.
    const QColor& GetColor() const { return m_color; }
    const QString& GetColorString() const { return m_colorString; }
    qint32 GetId() const { return m_id; }
    /// The translated display name that the registry has for the id, "Undefined" without one.
    QString GetName() const;

    /// Colour strings and ids are equal.
    bool operator==(const ColorDefinition& other) const;
    /// Orders by id alone.
    bool operator<(const ColorDefinition& other) const { return m_id < other.m_id; }

private:
    QColor m_color;
    QString m_colorString;
    qint32 m_id = -1;
};
