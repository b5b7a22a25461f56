// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/tray/trayicon.h>
#include <guibase/widgets/animationwidget.h>
#include <guibase/widgets/circlelayout.h>
#include <guibase/widgets/closabletabwidget.h>
#include <guibase/widgets/contextmenuhandler.h>
#include <guibase/widgets/toolbarcontainer.h>
#include <guibase/widgets/widgetflasher.h>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>

namespace gallery {

namespace {

/// The icon as a panel of this colour shows it, in several sizes.
QWidget* onPanel(const QIcon& icon, const QColor& color)
{
    auto* panel = new QWidget;
    QPalette palette = panel->palette();
    palette.setColor(QPalette::Window, color);
    panel->setPalette(palette);
    panel->setAutoFillBackground(true);
    auto* row = new QHBoxLayout(panel);
    for (const int side : {16, 22, 32, 64}) {
        auto* picture = new QLabel;
        picture->setPixmap(icon.pixmap(side));
        row->addWidget(picture);
    }
    row->addStretch();
    return panel;
}

ClosableTabWidget* makeTabWidget(QTabWidget::TabPosition position)
{
    auto* tabs = new ClosableTabWidget;
    tabs->setTabPosition(position);
    tabs->addTab(new QLabel(QStringLiteral("This one cannot be closed.")), QStringLiteral("Band"));
    tabs->setTabClosable(0, false);
    for (const char* name : {"Signals", "Bearings", "Jobs"})
        tabs->addTab(new QPlainTextEdit, QString::fromLatin1(name));
    tabs->closeTab(3); // can be reopened
    return tabs;
}

/// The menu of a tab, as it opens.
QWidget* makeTabMenu(ClosableTabWidget* tabs)
{
    auto* menu = new QMenu;
    tabs->addTabEntries(*menu, 1);
    menu->setWindowFlags(Qt::Widget); // Part of the page.
    return menu;
}

/// Begins when the page is shown.
template <typename Widget>
Widget* flashing(Widget* widget, const QColor& color = {})
{
    WidgetFlasher::flash(widget, WidgetFlasher::maximumBlinks, color);
    return widget;
}

QWidget* makeCircle(CircleLayout::RadiusPolicy policy, double startAngle,
                    CircleLayout::Direction direction, int count)
{
    auto* page = new QFrame;
    page->setFrameShape(QFrame::StyledPanel);
    page->setMinimumHeight(210);
    auto* circle = new CircleLayout(page);
    circle->setRadiusPolicy(policy);
    circle->setStartAngle(startAngle);
    circle->setDirection(direction);
    circle->setFixedRadius(40);
    for (int number = 1; number <= count; ++number) {
        auto* button = new QPushButton(QString::number(number));
        button->setFixedWidth(36);
        circle->addWidget(button);
    }
    return page;
}

QWidget* makeToolBar(Qt::ToolBarArea area, int length)
{
    auto* holder = new QWidget;
    auto* window = new QMainWindow;
    auto* container = new ToolBarContainer;
    auto* mode = new QComboBox;
    mode->addItems({QStringLiteral("AM"), QStringLiteral("FM"), QStringLiteral("SSB")});
    container->addWidget(mode);
    for (const char* suffix : {" kHz", " dB", " %"}) {
        auto* box = new QSpinBox;
        box->setSuffix(QString::fromLatin1(suffix));
        container->addWidget(box);
    }
    container->addWidget(new QCheckBox(QStringLiteral("Mute")));
    auto* bar = new QToolBar;
    bar->addWidget(container);
    window->addToolBar(area, bar);
    window->setWindowFlags(Qt::Widget);
    if (area == Qt::TopToolBarArea)
        window->setFixedSize(length, 60);
    else
        window->setFixedSize(140, length);
    (new QHBoxLayout(holder))->addWidget(window, 0, Qt::AlignLeft | Qt::AlignTop);
    return holder;
}

} // namespace

QWidget* makeTabs()
{
    auto* all = new Specimens({QStringLiteral("On top"), QStringLiteral("At the left")});
    ClosableTabWidget* tabs = makeTabWidget(QTabWidget::North);
    all->addRow(QStringLiteral("ClosableTabWidget"), {tabs, makeTabWidget(QTabWidget::West)});
    all->addRow(QStringLiteral("Menu of a tab"), {makeTabMenu(tabs)});
    auto* list = new QListWidget;
    list->addItems({QStringLiteral("Cadiz"), QStringLiteral("Lisbon"), QStringLiteral("Porto")});
    auto* text = new QPlainTextEdit(QStringLiteral("Notes"));
    const QList<QWidget*> served{list, text};
    for (QWidget* widget : served) {
        widget->setMaximumHeight(120);
        new ContextMenuHandler(widget, [](QMenu& menu, const ContextMenuRequest& request) {
            const QString item = request.index.data().toString();
            menu.addAction(item.isEmpty() ? QStringLiteral("An entry")
                                          : QStringLiteral("Listen to %1").arg(item));
        });
    }
    all->addRow(QStringLiteral("ContextMenuHandler"), served);
    all->addNote(QStringLiteral("The right mouse button, the Menu key and Shift+F10 open menus."));
    return all;
}

QWidget* makeSigns()
{
    auto* all = new Specimens(
        {QStringLiteral("Plain"), QStringLiteral("Styled"), QStringLiteral("In another colour")});
    auto* styled = new QPushButton(QStringLiteral("Tune"));
    styled->setStyleSheet(QStringLiteral("background: #205080; color: white; padding: 6px"));
    all->addRow(QStringLiteral("WidgetFlasher"),
                {flashing(new QSpinBox), flashing(styled), flashing(new QSpinBox, Qt::red)});
    auto* tree = new QTreeWidget;
    tree->setMaximumHeight(120);
    all->addRow(QString(), {flashing(new QCheckBox(QStringLiteral("Muted"))), flashing(tree),
                            flashing(new QComboBox, Qt::darkGreen)});
    auto* again = new QPushButton(QStringLiteral("Flash again"));
    QObject::connect(again, &QPushButton::clicked, all,
                     [again] { flashing(again->parentWidget()); });
    all->addRow(QString(), {again});
    QList<QWidget*> signs;
    for (const int side : {16, 32, 64}) {
        auto* sign = new AnimationWidget;
        sign->setFixedSize(side, side);
        sign->start();
        signs << sign;
    }
    all->addRow(QStringLiteral("AnimationWidget"), signs);
    auto* disabled = new AnimationWidget;
    disabled->start();
    disabled->setEnabled(false);
    disabled->setFixedSize(32, 32);
    all->addRow(QStringLiteral("Disabled, stopped"), {disabled, new AnimationWidget});
    return all;
}

QWidget* makeCircles()
{
    using Policy = CircleLayout::RadiusPolicy;
    using Direction = CircleLayout::Direction;
    auto* all = new Specimens({QStringLiteral("Largest"), QStringLiteral("Smallest"),
                               QStringLiteral("Fixed, 40 pixels")});
    const auto addRow = [all](const QString& name, double angle, Direction direction, int count) {
        QList<QWidget*> row;
        for (const Policy policy : {Policy::Largest, Policy::Smallest, Policy::Fixed})
            row << makeCircle(policy, angle, direction, count);
        all->addRow(name, row);
    };
    addRow(QStringLiteral("Clockwise from the top"), 0, Direction::Clockwise, 8);
    addRow(QStringLiteral("Counter-clockwise from the right"), 90, Direction::CounterClockwise, 5);
    QWidget* mirrored = makeCircle(Policy::Largest, 0, Direction::Clockwise, 3);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    all->addRow(QStringLiteral("Right to left"), {mirrored});
    return all;
}

QWidget* makeToolBars()
{
    auto* all = new Specimens({QStringLiteral("With room"), QStringLiteral("With less")});
    constexpr auto top = Qt::TopToolBarArea;
    all->addRow(QStringLiteral("Horizontal"), {makeToolBar(top, 520), makeToolBar(top, 240)});
    QWidget* mirrored = makeToolBar(top, 240);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    all->addRow(QStringLiteral("Right to left"), {mirrored});
    constexpr auto left = Qt::LeftToolBarArea;
    all->addRow(QStringLiteral("Vertical"), {makeToolBar(left, 260), makeToolBar(left, 130)});
    return all;
}

QWidget* makeTrayIcons()
{
    auto* all = new Specimens({QStringLiteral("Light panel"), QStringLiteral("Dark panel"),
                               QStringLiteral("Without an icon")});
    const QIcon icon = all->style()->standardIcon(QStyle::SP_ComputerIcon);
    for (const TrayState state :
         {TrayState::Idle, TrayState::Running, TrayState::Warning, TrayState::Fault}) {
        const QIcon badged = TrayIcon::stateIcon(icon, state);
        all->addRow(TrayIcon::stateName(state),
                    {onPanel(badged, QColor(0xf0, 0xf0, 0xf0)),
                     onPanel(badged, QColor(0x20, 0x20, 0x24)),
                     onPanel(TrayIcon::stateIcon({}, state), QColor(0x80, 0x80, 0x80))});
    }
    auto* live = new TrayIcon(all);
    auto* shown = new QCheckBox(QStringLiteral("Shown"));
    QObject::connect(shown, &QCheckBox::toggled, live,
                     [live](bool isShown) { isShown ? live->show() : live->hide(); });
    auto* states = new QComboBox;
    for (const TrayState state :
         {TrayState::Idle, TrayState::Running, TrayState::Warning, TrayState::Fault})
        states->addItem(TrayIcon::stateName(state));
    QObject::connect(states, &QComboBox::currentIndexChanged, live,
                     [live](int index) { live->setState(static_cast<TrayState>(index)); });
    auto* message = new QPushButton(QStringLiteral("Message"));
    QObject::connect(message, &QPushButton::clicked, live, [live] {
        live->showMessage(QStringLiteral("Gallery"), QStringLiteral("A message of the icon."));
    });
    all->addRow(QStringLiteral("In the tray of this desktop"), {shown, states, message});
    return all;
}

} // namespace gallery
