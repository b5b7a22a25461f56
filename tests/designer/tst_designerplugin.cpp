// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "ui_receiverwindow.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QMainWindow>
#include <QPluginLoader>
#include <QUiLoader>

using SpinBoxes::FrequencySpinBox;

/// The plug-in as Qt Designer and QUiLoader take it, and the form of the example.
class tst_DesignerPlugin : public GuardedTest
{
    Q_OBJECT

private:
    static QList<QDesignerCustomWidgetInterface*> widgets()
    {
        QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN));
        const auto* all =
            qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
        return all != nullptr ? all->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
    }
    static std::unique_ptr<QWidget> load(QIODevice& form)
    {
        QUiLoader loader;
        loader.setLanguageChangeEnabled(false);
        loader.addPluginPath(QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path());
        form.open(QIODevice::ReadOnly);
        return std::unique_ptr<QWidget>(loader.load(&form));
    }
    static void checkWindow(const QMainWindow& window)
    {
        const auto* frequency = window.findChild<FrequencySpinBox*>(QStringLiteral("frequency"));
        QVERIFY(frequency != nullptr);
        QCOMPARE(frequency->value(), 14'225'000);
        QCOMPARE(frequency->textValue(), QStringLiteral("14.225 MHz"));
        QCOMPARE(frequency->maximum(), 3'000'000'000);
        const auto* bandwidth = window.findChild<ComboBoxes::Int32ComboBox*>();
        QCOMPARE(bandwidth->value(), 6000);
        QCOMPARE(bandwidth->currentIndex(), 1);
        const auto* splitter = window.findChild<Splitter*>(QStringLiteral("splitter"));
        QCOMPARE(splitter->storageName(), QStringLiteral("Receiver"));
        QCOMPARE(splitter->count(), 2);
        QVERIFY(qobject_cast<RadioPanes::LevelPanes*>(splitter->widget(0)));
        const auto* stations = window.findChild<SortListView*>();
        QCOMPARE(stations->columns(), 2);
        QCOMPARE(stations->columnText(1), QStringLiteral("Frequency"));
        QVERIFY(stations->hasColumnSelectionMenu() && stations->isPlacingArrivals());
        auto* dock = window.findChild<EnhancedDockWidget*>(QStringLiteral("receiverDock"));
        QVERIFY(dock->hasAutoHideButton() && dock->hasMaximizeButton() &&
                !dock->hasMinimizeButton());
        QCOMPARE(window.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
        QVERIFY(dock->isVisible() && frequency->isVisible());
    }

private Q_SLOTS:
    void everyWidget()
    {
        QCOMPARE(widgets().size(), 34);
        QSet<QByteArray> pictures;
        for (QDesignerCustomWidgetInterface* widget : widgets()) {
            const QByteArray name = widget->name().toLatin1();
            // What Designer drops is of the class that it names, and so is what the form makes of
            // it.
            const std::unique_ptr<QWidget> made(widget->createWidget(nullptr));
            QCOMPARE(made->metaObject()->className(), name);
            QBuffer form;
            form.setData(widget->domXml().toUtf8());
            const std::unique_ptr<QWidget> dropped = load(form);
            QVERIFY2(dropped != nullptr, name);
            QCOMPARE(dropped->metaObject()->className(), name);
            QVERIFY2(QFileInfo::exists(QStringLiteral(PUBLIC_HEADERS "/") + widget->includeFile()),
                     name);
            QVERIFY2(!widget->group().isEmpty() && !widget->toolTip().isEmpty(), name);

            QBuffer picture;
            picture.open(QIODevice::WriteOnly);
            widget->icon().pixmap(24).save(&picture, "PNG");
            pictures << picture.data();
        }
        QCOMPARE(pictures.size(), widgets().size()); // one can tell them apart
    }
    void formIsLoaded()
    {
        QFile file(QStringLiteral(DESIGNER_FORM));
        const std::unique_ptr<QWidget> window = load(file);
        QVERIFY(qobject_cast<QMainWindow*>(window.get()));
        window->show();
        checkWindow(static_cast<QMainWindow&>(*window));
    }
    void formIsCompiled()
    {
        QMainWindow window;
        Ui::ReceiverWindow form;
        form.setupUi(&window);
        window.show();
        checkWindow(window);
    }
    void dockButtons()
    {
        QMainWindow window;
        auto* dock = new EnhancedDockWidget(&window);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        window.show();
        const auto count = [dock] { return dock->titleBarWidget()->actions().size(); };
        for (const char* name : {"autoHideButton", "maximizeButton", "minimizeButton"}) {
            QVERIFY(!dock->property(name).toBool());
            for (const bool on : {true, true, false, false, true}) {
                dock->setProperty(name, on);
                QCOMPARE(dock->property(name).toBool(), on);
            }
        }
        QCOMPARE(count(), 4); // with the one that restores
        dock->setMaximizeButton(false);
        QCOMPARE(count(), 3);
        dock->setMinimizeButton(false);
        QCOMPARE(count(), 1);
    }
};

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"
