// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include "pictures.h"

#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>

namespace gallery {

namespace {

constexpr QSize pictureSize(1280, 800);
constexpr int settlingRounds = 3; // docks put work off into the next round

} // namespace

GalleryWindow::GalleryWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_names(new QListWidget)
    , m_pages(new QStackedWidget)
{
    setWindowTitle(tr("Gallery"));
    auto* splitter = new QSplitter;
    splitter->addWidget(m_names);
    splitter->addWidget(m_pages);
    splitter->setStretchFactor(1, 1);
    splitter->setCollapsible(0, false);
    setCentralWidget(splitter);
    connect(m_names, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);

    QMenu* view = menuBar()->addMenu(tr("&View"));
    QAction* dark = view->addAction(tr("&Dark"), Qt::CTRL | Qt::Key_D);
    dark->setCheckable(true);
    connect(dark, &QAction::toggled, this, &GalleryWindow::setDark);
    QAction* disabled = view->addAction(tr("D&isabled"), Qt::CTRL | Qt::Key_I);
    disabled->setCheckable(true);
    connect(disabled, &QAction::toggled, m_pages, &QWidget::setDisabled);
    for (QAction* action : {dark, disabled})
        GuiBase::Instance().ShowHotKeyFrom(action, tr("Gallery"));
    makePages();
    const int namesWidth = m_names->sizeHintForColumn(0) + 2 * m_names->frameWidth();
    splitter->setSizes({namesWidth, pictureSize.width() - namesWidth});
    resize(pictureSize.boundedTo(screen()->availableSize()));
}

GalleryWindow::~GalleryWindow() = default;

const QList<Page>& GalleryWindow::pages()
{
    static const QList<Page> all{
        {QStringLiteral("spinboxes"), tr("Spin boxes"), &makeSpinBoxes},
        {QStringLiteral("comboboxes"), tr("Combo boxes"), &makeComboBoxes},
        {QStringLiteral("coordinates"), tr("Positions and masks"), &makeCoordinates},
        {QStringLiteral("controllers"), tr("Sliders and dials"), &makeControllers},
        {QStringLiteral("frequencies"), tr("Texts of frequencies"), &makeFrequencies},
        {QStringLiteral("bindings"), tr("Bindings"), &makeBindings},
        {QStringLiteral("lists"), tr("Lists"), &makeLists},
        {QStringLiteral("tables"), tr("Tables"), &makeTables},
        {QStringLiteral("docks"), tr("Docks"), &makeDocks},
        {QStringLiteral("titlebars"), tr("Title bars"), &makeTitleBars},
        {QStringLiteral("splitters"), tr("Splitters"), &makeSplitters},
        {QStringLiteral("panes"), tr("Spectrum and waterfall"), &makeLivePanes},
        {QStringLiteral("bearings"), tr("Compass rose"), &makeBearings},
        {QStringLiteral("colors"), tr("Colour pickers"), &makeColorPickers},
        {QStringLiteral("coloreditor"), tr("Colour editor"), &makeColorEditor},
        {QStringLiteral("popups"), tr("Pop-ups"), &makePopUps},
        {QStringLiteral("dialogs"), tr("Dialogs"), &makeDialogs},
        {QStringLiteral("recent"), tr("Recent files and texts"), &makeRecent, true},
        {QStringLiteral("tabs"), tr("Tabs and context menus"), &makeTabs},
        {QStringLiteral("signs"), tr("Flashing and busy signs"), &makeSigns, true},
        {QStringLiteral("circles"), tr("Circles"), &makeCircles},
        {QStringLiteral("toolbars"), tr("Tool bars"), &makeToolBars},
        {QStringLiteral("tray"), tr("Tray icon"), &makeTrayIcons},
        {QStringLiteral("keys"), tr("Keys"), &makeKeys},
    };
    return all;
}

void GalleryWindow::makePages()
{
    for (const Page& page : pages()) {
        m_names->addItem(page.title);
        m_pages->addWidget(new QWidget); // until it is shown
    }
    m_names->setCurrentRow(0);
}

void GalleryWindow::showPage(int number)
{
    if (number < 0 || number >= pages().size())
        return;
    QWidget* const placeholder = m_pages->widget(number);
    if (placeholder->metaObject() == &QWidget::staticMetaObject &&
        placeholder->children().isEmpty()) {
        m_pages->removeWidget(placeholder);
        delete placeholder;
        auto* page = new QScrollArea; // In a small window the page scrolls.
        page->setFrameShape(QFrame::NoFrame);
        page->setWidgetResizable(true);
        page->setWidget(pages().at(number).make());
        m_pages->insertWidget(number, page);
    }
    m_pages->setCurrentIndex(number);
    m_names->setCurrentRow(number);
}

void GalleryWindow::setDark(bool dark)
{
    QApplication::setPalette(dark ? pictures::darkPalette()
                                  : QApplication::style()->standardPalette());
}

QList<QImage> GalleryWindow::pagePictures()
{
    resize(pictureSize);
    QList<QImage> result;
    for (int number = 0; number < pages().size(); ++number) {
        showPage(number);
        for (int round = 0; round < settlingRounds; ++round)
            QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        result.append(grab().toImage());
    }
    return result;
}

QString GalleryWindow::writePictures(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return folder;
    for (const bool dark : {false, true}) {
        setDark(dark);
        const QList<QImage> all = pagePictures();
        for (int number = 0; number < pages().size(); ++number) {
            const QString name = QStringLiteral("%1-%2.png")
                                     .arg(pages().at(number).name,
                                          dark ? QStringLiteral("dark") : QStringLiteral("light"));
            QString path = QDir(folder).filePath(name);
            if (!all.at(number).save(path))
                return path;
        }
    }
    return {};
}

QStringList GalleryWindow::lateColors(const QString& folder)
{
    QApplication::setCursorFlashTime(0);
    const auto picturesFrom = [](bool wasDark, bool dark) {
        setDark(wasDark);
        GalleryWindow window;
        window.show();
        window.pagePictures(); // makes the pages
        setDark(dark);
        return window.pagePictures();
    };
    QStringList late;
    for (const bool dark : {false, true}) {
        const QList<QImage> changed = picturesFrom(!dark, dark);
        const QList<QImage> made = picturesFrom(dark, dark);
        for (int number = 0; number < pages().size(); ++number) {
            if (pages().at(number).isMoving || changed.at(number) == made.at(number))
                continue;
            const QString name = pages().at(number).name +
                                 (dark ? QStringLiteral("-dark") : QStringLiteral("-light"));
            late.append(name);
            changed.at(number).save(QDir(folder).filePath(name + QStringLiteral("-changed.png")));
            made.at(number).save(QDir(folder).filePath(name + QStringLiteral("-made.png")));
        }
    }
    return late;
}

} // namespace gallery
