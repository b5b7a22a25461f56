// SPDX-License-Identifier: MIT
#pragma once

#include "pages.h"

#include <QMainWindow>

class QListWidget;
class QStackedWidget;

namespace gallery {

/// A list of the pages beside the one that is shown. Pages are made when they are first shown.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit GalleryWindow(QWidget* parent = nullptr);
    ~GalleryWindow() override;

    static const QList<Page>& pages();
    void showPage(int number);
    /// Palette and colour set, of the whole application.
    static void setDark(bool dark);

    /// Writes a picture of every page, light and dark, into the folder. The name of one that cannot
    /// be written, or an empty text.
    QString writePictures(const QString& folder);

private:
    void makePages();

    QListWidget* m_names;
    QStackedWidget* m_pages;
};

} // namespace gallery
