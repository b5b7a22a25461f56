// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace gallery {

/// A page of the gallery: one family in its states.
struct Page
{
    QString name; ///< Also of its pictures.
    QString title;
    QWidget* (*make)();
    bool isMoving = false; ///< Two pictures of it differ, and its pictures are not compared.
};

QWidget* makeSpinBoxes();
QWidget* makeComboBoxes();
QWidget* makeCoordinates();
QWidget* makeControllers();
QWidget* makeLists();
QWidget* makeTables();
QWidget* makeDocks();
QWidget* makeTitleBars();
QWidget* makeSplitters();
QWidget* makeLivePanes();
QWidget* makeBearings();
QWidget* makeColorEditor();
QWidget* makeColorPickers();
QWidget* makePopUps();
QWidget* makeDialogs();
QWidget* makeRecent();
QWidget* makeTabs();
QWidget* makeSigns();
QWidget* makeCircles();
QWidget* makeToolBars();
QWidget* makeTrayIcons();
QWidget* makeBindings();
QWidget* makeKeys();
QWidget* makeFrequencies();

} // namespace gallery
