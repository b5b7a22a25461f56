// SPDX-License-Identifier: MIT
#include "support/randombytes.h"
#include "support/testguard.h"

#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QApplication>
#include <QDataStream>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

#include <memory>

namespace {

const QString recordName = QStringLiteral("GuiBase_test");
const QString memberName = QStringLiteral("Geometry");

QString storedGeometry(const QString& record = recordName)
{
    return CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(record)->GetString(memberName);
}

void storeGeometry(const QByteArray& text)
{
    CfgCenter::GetAppCfg(SettingsView)
        ->OpenSubCfg(recordName)
        ->SetString(memberName, QString::fromLatin1(text));
}

QByteArray geometryOf(int x, int width)
{
    QWidget widget;
    widget.setGeometry(x, 40, width, 200);
    return widget.saveGeometry();
}

} // namespace

class TestWindowLayouts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_guard = std::make_unique<TestGuard>();
        m_services = &GuiBase::Instance();
    }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }

    void recordNames_data();
    void recordNames();
    void geometryTexts_data();
    void geometryTexts();
    void hostileGeometry();
    void destroyedWidgetKeepsItsLayout();
    void resets_data();
    void resets();
    void terminationStoresAndForgets();

private:
    void registerWidget(QWidget& widget)
    {
        m_services->RegisterPersistentWidget(&widget, QStringLiteral("test"));
    }

    std::unique_ptr<TestGuard> m_guard;
    GuiBase* m_services = nullptr;
};

void TestWindowLayouts::recordNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("record");
    QTest::newRow("blanks and colon")
        << QStringLiteral("Main View: 1") << QStringLiteral("GuiBase_Main_View_1");
    QTest::newRow("forbidden references")
        << QStringLiteral("a#xFFFEb#x7Fc") << QStringLiteral("GuiBase_a#xFFFEbc");
    QTest::newRow("forbidden plane") << QStringLiteral("a#x2FFFFb") << QStringLiteral("GuiBase_ab");
}

void TestWindowLayouts::recordNames()
{
    QFETCH(QString, name);
    QFETCH(QString, record);
    QWidget widget;
    m_services->RegisterPersistentWidget(&widget, name);
    m_services->RegisterPersistentWidget(&widget, QStringLiteral("again"));
    m_services->RegisterPersistentWidget(nullptr, name);
    m_services->StoreWidgetSize();
    QVERIFY(!storedGeometry(record).isEmpty());
    QVERIFY(storedGeometry(QStringLiteral("GuiBase_again")).isEmpty());
    m_services->UnregisterPersistentWidget(&widget);
    m_services->UnregisterPersistentWidget(nullptr);
}

void TestWindowLayouts::geometryTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("width");
    const QByteArray good = geometryOf(30, 345);
    QByteArray far;
    QDataStream stream(&far, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_0);
    stream << quint32{0x1D9D0CB} << quint16{1} << quint16{0}
           << QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)) << QRect(0, 0, 345, 200)
           << qint32{0} << quint8{0} << quint8{0};
    QTest::newRow("good") << good.toHex() << 345;
    QTest::newRow("nothing") << QByteArray() << 123;
    QTest::newRow("cut") << good.toHex().chopped(8) << 123;
    QTest::newRow("odd") << good.toHex().chopped(1) << 123;
    QTest::newRow("longer") << good.toHex() + "00" << 123;
    QTest::newRow("not hexadecimal") << QByteArray("zz") + good.toHex() << 123;
    QTest::newRow("other magic") << QByteArray("ff") + good.toHex().mid(2) << 123;
    QTest::newRow("overflowing") << far.toHex() << 123;
}

void TestWindowLayouts::geometryTexts()
{
    QFETCH(QByteArray, text);
    storeGeometry(text);
    QWidget widget;
    widget.resize(123, 100);
    registerWidget(widget);
    QVERIFY(widget.isVisible());
    QTEST(widget.width(), "width");
    widget.resize(234, 100);
    m_services->StoreWidgetSize();
    QCOMPARE(storedGeometry().toLatin1(), widget.saveGeometry().toHex());
}

void TestWindowLayouts::hostileGeometry()
{
    const QByteArray good = geometryOf(30, 345);
    RandomBytes random("geometries");
    for (int round = 0; round < RandomBytes::rounds(200); ++round) {
        storeGeometry(random.mutated(good).toHex());
        QWidget widget;
        registerWidget(widget);
        m_services->UnregisterPersistentWidget(&widget);
    }
}

void TestWindowLayouts::destroyedWidgetKeepsItsLayout()
{
    auto widget = std::make_unique<QWidget>();
    registerWidget(*widget);
    widget->resize(456, 300);
    const QByteArray geometry = widget->saveGeometry();
    widget.reset();
    QCOMPARE(storedGeometry().toLatin1(), geometry.toHex());
    m_services->StoreWidgetSize();
    QVERIFY(m_services->RestoreWidgetSize());
}

void TestWindowLayouts::resets_data()
{
    QTest::addColumn<bool>("factory");
    QTest::addColumn<int>("width");
    QTest::newRow("program start") << false << 345;
    QTest::newRow("factory") << true << 123;
}

void TestWindowLayouts::resets()
{
    QFETCH(bool, factory);
    storeGeometry(geometryOf(30, 345).toHex());
    QWidget widget;
    widget.resize(123, 100);
    registerWidget(widget);
    widget.resize(234, 100);
    widget.hide();

    QObject owner;
    QSignalSpy starts(m_services, &GuiBase::signalResetToProgramStart);
    QSignalSpy factories(m_services, &GuiBase::signalResetToFactoryDefault);
    QAction* action = factory ? m_services->CreateResetFactoryViewAction(&owner)
                              : m_services->CreateResetWidgetViewAction(&owner);
    // What the windows do while they come back must not start it again.
    class Reentering : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Show)
                refused = !GuiBase::Instance().RestoreWidgetSize();
            return false;
        }
        bool refused = false;
    } reentering;
    widget.installEventFilter(&reentering);
    action->trigger();
    QTEST(widget.width(), "width");
    QVERIFY(widget.isVisible());
    QVERIFY(reentering.refused);
    QCOMPARE(starts.count(), factory ? 0 : 1);
    QCOMPARE(factories.count(), factory ? 1 : 0);
}

// The last function: afterwards the services take no part in the save cycle.
void TestWindowLayouts::terminationStoresAndForgets()
{
    QWidget widget;
    registerWidget(widget);
    m_services->GetTimeZone();
    m_services->aboutToTerminate();
    QVERIFY(!storedGeometry().isEmpty());
    QVERIFY(CfgCenter::GetAppCfg(SettingsView)->HasSubCfg(QStringLiteral("GuiCentral")));
    const QString stored = storedGeometry();
    widget.resize(456, 300);
    m_services->StoreWidgetSize();
    QCOMPARE(storedGeometry(), stored);
}

QTEST_MAIN(TestWindowLayouts)
#include "tst_windowlayouts.moc"
