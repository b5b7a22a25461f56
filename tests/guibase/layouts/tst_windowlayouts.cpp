// SPDX-License-Identifier: MIT
#include "layoutwindow.h"
#include "support/guardedtest.h"
#include "support/windowmanager.h"

#include <guibase/records/dockstatecheck.h>

#include <QDialog>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <functional>
#include <utility>

class tst_WindowLayouts : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void dismissedDialogStaysAway()
    {
        QDialog dialog;
        m_services->RegisterPersistentWidget(&dialog, QStringLiteral("dialog"));
        QVERIFY(dialog.isVisible());
        dialog.reject();
        m_services->setMode(1);
        QVERIFY(dialog.isHidden());
    }
    void minimizedWindow()
    {
        QString geometry;
        {
            Window window;
            window.enlist();
            window.resize(640, 480);
            QVERIFY(windowManagerIsReady());
            m_services->StoreWidgetSize();
            geometry = stored("Geometry");
            window.showMinimized();
            QTRY_VERIFY(window.isMinimized());
            window.close();
        }
        QCOMPARE(stored("Geometry"), geometry);
        Window closed;
        closed.enlist();
        closed.close();
        Window window;
        window.enlist();
        QVERIFY(!window.isMinimized());
        QTRY_COMPARE(window.size(), QSize(640, 480));
        QTRY_VERIFY(window.isMinimized());
        QVERIFY(closed.isHidden());
        window.showNormal();
        QVERIFY(m_services->RestoreWidgetSize());
        QTRY_VERIFY(window.isMinimized());
    }
    void subWindow()
    {
        const auto makeSubWindow = [this](QMdiArea& area) {
            auto* window = new Window;
            QMdiSubWindow* subWindow = area.addSubWindow(window);
            area.show();
            m_services->RegisterPersistentWidget(subWindow, QStringLiteral("docks"));
            return std::pair(subWindow, window);
        };
        const QRect place(11, 27, 510, 430); // The toolkit keeps room for a title bar.
        {
            QMdiArea area;
            const auto [subWindow, window] = makeSubWindow(area);
            subWindow->setGeometry(place);
            window->dock("B")->hide();
            subWindow->showMaximized();
            m_services->StoreWidgetSize();
            delete window;
            m_services->StoreWidgetSize();
        }
        QMdiArea area;
        const auto [subWindow, window] = makeSubWindow(area);
        QVERIFY(subWindow->isMaximized());
        QVERIFY(window->dock("B")->isHidden());
        // Maximized since the start, it has its place all the same.
        m_services->StoreWidgetSize();
        subWindow->showNormal();
        QCOMPARE(subWindow->geometry(), place);
    }
    void destroyedMeanwhile_data()
    {
        TestRows<bool> row;
        row("by registration", true);
        row("by reset", false);
    }
    /// The application deletes, unregisters and registers windows while they come back.
    void destroyedMeanwhile()
    {
        const bool byRegistration = std::get<bool>(TestRows<bool>::fetch());
        {
            Window window;
            window.enlist();
            m_services->StoreWidgetSize();
        }
        auto doomed = std::make_unique<Window>();
        Window other;
        class Handler : public QObject
        {
        public:
            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() != QEvent::Show || !action)
                    return false;
                const auto once = std::exchange(action, nullptr);
                isRefused = !GuiBase::Instance().RestoreWidgetSize();
                once();
                return false;
            }
            std::function<void()> action;
            bool isRefused = false;
        } handler;
        if (!byRegistration) {
            doomed->enlist();
            other.enlist(QStringLiteral("other"));
            doomed->hide();
            other.hide();
        }
        doomed->dock("A")->installEventFilter(&handler);
        doomed->dock("A")->hide();
        handler.action = [&] {
            m_services->UnregisterPersistentWidget(doomed.get());
            doomed->dock("B")->deleteLater();
            m_services->RegisterPersistentWidget(&other, QStringLiteral("other"));
        };
        if (byRegistration)
            m_services->RegisterPersistentWidget(doomed.get(), QStringLiteral("docks"));
        else
            QVERIFY(m_services->RestoreWidgetSize());
        QVERIFY(!handler.action);
        QCOMPARE(handler.isRefused, !byRegistration);
        doomed.reset();
        m_services->StoreWidgetSize();
        QVERIFY(!stored("State", QStringLiteral("GuiBase_other")).isEmpty());
    }
    void writtenWhileRunning()
    {
        Window window;
        window.enlist();
        QVERIFY(windowManagerIsReady());
        m_services->StoreWidgetSize();
        // Where nobody places windows, places are no news.
        const auto layout = [](const QByteArray& state) {
            return WindowSystem::placesWindows()
                       ? state
                       : DockStateCheck::withPlaces(state, 1, {{QStringLiteral("C"), {}}});
        };
        const auto written = [&] {
            return layout(storedLayout(0)) == layout(window.saveState(1)) &&
                   stored("Geometry") == hexadecimal(window.saveGeometry());
        };
        window.resize(620, 420);
        QVERIFY(!written());
        m_services->SetLayoutWriteDelay(10); // Also for the change that waits already.
        QTRY_VERIFY(written());
        for (const auto& change : std::initializer_list<std::function<void()>>{
                 [&] { window.resize(610, 410); }, [&] { window.dock("A")->hide(); },
                 [&] { window.dock("C")->setFloating(true); },
                 [&] { window.dock("C")->setGeometry(333, 222, 260, 250); }}) {
            change();
            QVERIFY(!written());
            QTRY_VERIFY(written());
        }
    }
    // The last function: afterwards the services take no part in the save cycle.
    void terminationStoresAndForgets()
    {
        Window window;
        window.enlist();
        m_services->aboutToTerminate();
        const QString geometry = stored("Geometry");
        QVERIFY(!geometry.isEmpty());
        QVERIFY(CfgCenter::GetAppCfg(SettingsView)->HasSubCfg(QStringLiteral("GuiCentral")));
        window.resize(456, 300);
        m_services->StoreWidgetSize();
        QCOMPARE(stored("Geometry"), geometry);
    }

private:
    void prepare() override { m_services->SetLayoutWriteDelay(-1); }
    void tidy() override { m_services->setMode(0); }

    GuiBase* m_services = &GuiBase::Instance();
};

QTEST_MAIN(tst_WindowLayouts)
#include "tst_windowlayouts.moc"
