// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QComboBox>

#include <memory>

/// A combo box with the colours of the catalogue: a swatch and the name of each, grouped by system,
/// palette and user colours.
///
/// Typing searches the names. Return, or a choice from the list, ends the choice; Escape and
/// leaving the box abandon it, and the box shows again what Select() chose.
class GUIBASE_EXPORT ColorSelect : public QComboBox
{
    Q_OBJECT
public:
    /// `withSystemColors`: whether the system colours are offered too.
    explicit ColorSelect(QWidget* parent = nullptr, bool withSystemColors = true);
    ~ColorSelect() override;

    /// Makes the first entry with this colour string (ColorDefinition::GetColorString()) current;
    /// among several, the one with the id `preferredId`. No entry when there is none. Begins a
    /// choice.
    void Select(const QString& colorString, int preferredId = -1);
    /// The colour string of the current entry; empty without one.
    QString GetCurrent() const;
    /// The catalogue id of the current entry; -1 without one.
    int GetCurrentId() const;

Q_SIGNALS:
    /// The choice that began with Select() has been made, or abandoned. Once for each choice.
    void signalEndEdit();

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Private;

    const std::unique_ptr<Private> d;
};
