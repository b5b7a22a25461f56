// SPDX-License-Identifier: MIT
#include "support/checked.h"
#include "support/guardedtest.h"
#include "support/menuvisitor.h"
#include "support/randombytes.h"

#include <guibase/lists/columns/qheaderviewcolumnhandler.h>

#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QStandardItemModel>
#include <QTableView>

#include <memory>

namespace {

using guiHelper::QHeaderViewColumnHandler;

const QString stateKey = QStringLiteral("QHeaderViewColumnSettings_name_STATE");
const QString geometryKey = QStringLiteral("QHeaderViewColumnSettings_name_GEOM");

struct Header
{
    Header(int sections, Qt::Orientation orientation)
        : model(orientation == Qt::Horizontal ? 1 : sections,
                orientation == Qt::Horizontal ? sections : 1)
        , view(std::make_unique<QHeaderView>(orientation))
    {
        view->setModel(&model);
        view->setSectionsMovable(true);
        handler = new QHeaderViewColumnHandler(QStringLiteral("name"), view.get());
    }

    QStandardItemModel model;
    std::unique_ptr<QHeaderView> view;
    QPointer<QHeaderViewColumnHandler> handler;
};

void disarrange(QHeaderView& header, RandomBytes& random)
{
    for (int change = random.below(6); change > 0 && header.count() > 0; --change) {
        const int section = random.below(header.count());
        header.moveSection(section, random.below(header.count()));
        header.setSectionHidden(section, random.below(3) > 0);
        header.setSortIndicator(section, Qt::DescendingOrder);
        header.setSectionResizeMode(section, QHeaderView::ResizeMode(random.below(4)));
        header.resizeSection(section, random.below(500));
    }
    header.setStretchLastSection(random.below(2) == 0);
    if (random.below(4) == 0)
        header.setDefaultSectionSize(10 + random.below(100));
}

void storeState(const QByteArray& state)
{
    CfgCenter::GetAppCfg(SettingsView)->SetString(stateKey, QString::fromLatin1(state.toBase64()));
}

/// Whether the header is still in one piece.
bool isSound(const QHeaderView& header, int sections)
{
    QSet<int> seen;
    for (int place = 0; place < header.count(); ++place)
        seen.insert(header.logicalIndex(place));
    return header.count() == sections && seen.size() == sections && !seen.contains(-1);
}

void openMenu(QHeaderView& header, std::function<void(QMenu&)> visit)
{
    const MenuVisitor visitor(std::move(visit));
    Q_EMIT header.customContextMenuRequested(QPoint(1, 1));
    QVERIFY(visitor.hasSeenMenu());
}

} // namespace

class tst_HeaderColumns : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void menu()
    {
        Header header(2, Qt::Horizontal);
        header.model.setHorizontalHeaderLabels({QStringLiteral("A"), QStringLiteral("B")});
        header.view->show();
        CHECKED(openMenu(*header.view, [](QMenu& menu) {
            QCOMPARE(menu.actions().size(), 2);
            QCOMPARE(menu.actions().at(1)->text(), QStringLiteral("B"));
            MenuVisitor::choose(menu, 1);
        }));
        QVERIFY(header.view->isSectionHidden(1));
        CHECKED(openMenu(*header.view, [](QMenu& menu) {
            QCOMPARE(menu.actions().size(), 4);
            QVERIFY(!menu.actions().at(0)->isEnabled() && !menu.actions().at(1)->isChecked());
            MenuVisitor::choose(menu, 3);
        }));
        QCOMPARE(header.view->hiddenSectionCount(), 0);
        header.view->hideSection(0);
        header.view->hideSection(1);
        header.handler->saveColumnStatus();
        header.handler->restoreColumnStatus();
        QCOMPARE(header.view->hiddenSectionCount(), 1);
    }
    void handlerAndHeaderMayGo()
    {
        Header header(2, Qt::Horizontal);
        header.view->show();
        CHECKED(openMenu(*header.view, [&header](QMenu&) { header.view.reset(); }));
        QVERIFY(!header.handler);
        QHeaderViewColumnHandler alone(QStringLiteral("name"), nullptr);
        alone.saveColumnStatus();
        alone.restoreColumnStatus();
        QVERIFY(!CfgCenter::GetAppCfg(SettingsView)->Contains(stateKey));
    }
    void statesComeBack()
    {
        RandomBytes random("header states");
        for (int round = RandomBytes::rounds(300); round > 0; --round) {
            const auto orientation = random.below(2) == 0 ? Qt::Horizontal : Qt::Vertical;
            const int sections = random.below(20);
            const int added = random.below(3);
            const int late = random.below(sections + 1);
            Header stored(sections, orientation);
            Header restored(sections + added - late, orientation);
            disarrange(*stored.view, random);
            stored.view->showSection(0);
            disarrange(*restored.view, random);
            storeState(stored.view->saveState());
            restored.handler->restoreColumnStatus();
            QVERIFY(isSound(*restored.view, sections + added - late));
            for (int count = sections + added - late; count < sections + added; ++count)
                orientation == Qt::Horizontal ? restored.model.insertColumn(count)
                                              : restored.model.insertRow(count);
            QVERIFY(isSound(*restored.view, sections + added));
            for (int section = 0; section < sections; ++section) {
                QCOMPARE(restored.view->isSectionHidden(section),
                         stored.view->isSectionHidden(section));
                for (int other = 0; other < section; ++other)
                    QCOMPARE(restored.view->visualIndex(other) <
                                 restored.view->visualIndex(section),
                             stored.view->visualIndex(other) < stored.view->visualIndex(section));
            }
        }
    }
    void hostileStates()
    {
        RandomBytes random("hostile header states");
        const auto survives = [](const QByteArray& state) {
            Header header(5, Qt::Horizontal);
            storeState(state);
            header.handler->restoreColumnStatus();
            header.view->resizeSections(QHeaderView::ResizeToContents);
            header.model.insertColumn(0);
            header.view->moveSection(5, 0);
            return isSound(*header.view, 6);
        };
        Header original(5, Qt::Horizontal);
        const auto newState = [&] {
            disarrange(*original.view, random);
            return original.view->saveState();
        };
        const QByteArray whole = newState();
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(survives(whole.first(size)), whole.first(size).toHex());
        for (int round = RandomBytes::rounds(500); round > 0; --round) {
            const QByteArray state =
                random.below(10) == 0 ? random.bytes(300) : random.mutated(newState());
            QVERIFY2(survives(state), state.toHex());
        }
        // Also when it is stored before it was ever read.
        ICfg* const cfg = CfgCenter::GetAppCfg(SettingsView);
        for (const QString& key : {stateKey, geometryKey})
            cfg->SetString(key, key + QStringLiteral(": no base64!"));
        original.handler->saveColumnStatus();
        for (const QString& key : {stateKey, geometryKey}) {
            QCOMPARE(cfg->GetString(key + QStringLiteral("_damaged")),
                     key + QStringLiteral(": no base64!"));
            QVERIFY(QByteArray::fromBase64Encoding(cfg->GetString(key).toLatin1(),
                                                   QByteArray::AbortOnBase64DecodingErrors));
        }
    }
    void headerInView()
    {
        QTableView view;
        auto* const handler =
            new QHeaderViewColumnHandler(QStringLiteral("name"), view.horizontalHeader());
        QStandardItemModel model(2, 3);
        view.setModel(&model);
        view.setColumnWidth(1, 55);
        view.show();
        handler->saveColumnStatus();
        const QRect place = view.horizontalHeader()->geometry();
        handler->restoreColumnStatus();
        QCOMPARE(view.horizontalHeader()->geometry(), place);
        view.setModel(nullptr);
        handler->restoreColumnStatus();
        view.setModel(&model);
        QCOMPARE(view.columnWidth(1), 55);
        const MenuVisitor visitor([](QMenu& menu) { MenuVisitor::choose(menu, 1); });
        QTest::keyClick(&view, Qt::Key_H, Qt::ControlModifier | Qt::AltModifier);
        QVERIFY(visitor.hasSeenMenu() && view.isColumnHidden(1));
    }
};

QTEST_MAIN(tst_HeaderColumns)
#include "tst_headercolumns.moc"
