// SPDX-License-Identifier: MIT
#include "gallerywindow.h"

#include <guibase/colors/colorset.h>
#include <guibase/services/guibase.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QListWidget>
#include <QMenuBar>
#include <QPalette>
#include <QPixmap>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>

namespace gallery {

namespace {

constexpr QSize pictureSize(1180, 760);
constexpr int settlingRounds = 3; // docks put work off into the next round

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2d, 0x2d, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x2a, 0x82, 0xda));
    return palette;
}

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
    m_names->setFixedWidth(fontMetrics().averageCharWidth() * 26);
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
        m_pages->insertWidget(number, pages().at(number).make());
    }
    m_pages->setCurrentIndex(number);
    m_names->setCurrentRow(number);
}

void GalleryWindow::setDark(bool dark)
{
    const QPalette palette = dark ? darkPalette() : QApplication::style()->standardPalette();
    QApplication::setPalette(palette);
    ColorSet& colors = ColorSet::Instance();
    colors.slotRestoreSystemColors();
    if (dark)
        colors.Load(nullptr, QString::fromLatin1(ColorSet::darkDesktopName));
    else
        colors.slotRestoreFactoryColors();
    GuiBase::Instance().emit_signalColorsChanged();
}

QString GalleryWindow::writePictures(const QString& folder)
{
    if (!QDir().mkpath(folder))
        return folder;
    resize(pictureSize);
    for (const bool dark : {false, true}) {
        setDark(dark);
        for (int number = 0; number < pages().size(); ++number) {
            showPage(number);
            for (int round = 0; round < settlingRounds; ++round)
                QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            const QString name = QStringLiteral("%1-%2.png")
                                     .arg(pages().at(number).name,
                                          dark ? QStringLiteral("dark") : QStringLiteral("light"));
            QString path = QDir(folder).filePath(name);
            if (!grab().save(path))
                return path;
        }
    }
    return {};
}

} // namespace gallery
