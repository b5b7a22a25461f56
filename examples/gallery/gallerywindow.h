// SPDX-License-Identifier: MIT
#pragma once

#include "pages.h"

#include <QImage>
#include <QList>
#include <QMainWindow>
#include <QStringList>

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
    /// The palette of the whole application, which the colour set follows.
    static void setDark(bool dark);

    /// The names of the pages that look otherwise when the palette changes than when they are made
    /// with the new one. Both pictures of such a page are written into the folder, which must
    /// exist.
    static QStringList lateColors(const QString& folder);
    /// Writes a picture of every page, light and dark, into the folder. The name of one that cannot
    /// be written, or an empty text.
    QString writePictures(const QString& folder);

private:
    void makePages();
    QList<QImage> pagePictures();

    QListWidget* m_names;
    QStackedWidget* m_pages;
};

} // namespace gallery
