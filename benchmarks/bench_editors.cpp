// SPDX-License-Identifier: MIT
// The colour editor and the hot keys against the plain toolkit.
#include "ratio.h"

#include <guibase/colors/colorset.h>
#include <guibase/colors/colorslotgroups.h>
#include <guibase/colors/editor/colorsctrl.h>
#include <guibase/services/guibase.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <memory>

namespace {

QPixmap swatch(const QColor& color)
{
    QPixmap pixmap(13, 13);
    pixmap.fill(color);
    QPainter(&pixmap).drawRect(0, 0, 12, 12);
    return pixmap;
}

/// The same groups, rows, texts and swatches as in the editor, and nothing else.
std::unique_ptr<QWidget> makePlainTree()
{
    auto page = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(page.get());
    auto* tree = new QTreeWidget;
    tree->setHeaderLabels({QStringLiteral("Control"), QStringLiteral("Element")});
    for (const ColorSlotGroup& group : ColorSlotGroups::all) {
        auto* heading = new QTreeWidgetItem(tree, {QString::fromUtf8(group.heading)});
        for (const ColorSlotRow& row : group.rows) {
            const auto slot = static_cast<IColorBase::ECOLOR>(row.slot);
            auto* item = new QTreeWidgetItem(heading, {QString::fromUtf8(row.text), QString()});
            if (row.slot == ColorSlotRow::noSlot)
                continue;
            const ColorDefinition* color = ColorSet::Instance().GetColorDefinition(slot);
            item->setText(1, color->GetName());
            item->setIcon(1, swatch(color->GetColor()));
        }
    }
    tree->topLevelItem(0)->setExpanded(true);
    tree->resizeColumnToContents(0);
    layout->addWidget(tree);
    return page;
}

template <typename Make>
void openAndPaint(benchmark::State& state, Make make)
{
    for (auto _ : state) {
        const std::unique_ptr<QWidget> page = make();
        page->resize(500, 700);
        page->show();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(page->grab());
    }
}

void sendKeys(benchmark::State& state, QWidget& widget)
{
    for (auto _ : state) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_J, Qt::NoModifier, QStringLiteral("j"));
        QCoreApplication::sendEvent(&widget, &press);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_J, Qt::NoModifier, QStringLiteral("j"));
        QCoreApplication::sendEvent(&widget, &release);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    GuiBase& services = GuiBase::Instance();
    ColorSet::Instance().SetShowInDialog(0xffffffff);
    constexpr int hotKeyCount = 200;
    for (int i = 0; i < hotKeyCount; ++i)
        services.AddHotKey(Qt::Key(Qt::Key_F1 + i % 30), (i / 30) << 25, nullptr,
                           QString::number(i), QStringLiteral("Benchmark"), true, true);

    RatioRun run;
    run.compare(
        "opening the colour editor with all groups, painted, against a plain tree", 2.0,
        [](benchmark::State& state) {
            openAndPaint(state, [] { return std::make_unique<ColorsCtrl>(); });
        },
        [](benchmark::State& state) { openAndPaint(state, makePlainTree); });
    QWidget widget;
    run.compare(
        "a key through 200 hot keys, against none", 1.2,
        [&](benchmark::State& state) {
            application.installEventFilter(&services);
            sendKeys(state, widget);
            application.removeEventFilter(&services);
        },
        [&](benchmark::State& state) { sendKeys(state, widget); });
    return run.run(argc, argv);
}
