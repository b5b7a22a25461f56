// SPDX-License-Identifier: MIT
#include <guibase/colors/colors.h>

#include "support/testguard.h"

#include <QApplication>
#include <QPalette>
#include <QTest>

#include <limits>
#include <memory>

class tst_Colors : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void makesDefinitions_data();
    void makesDefinitions();
    void comparesDefinitions();
    void placesByIdWithoutMoving();
    void findsByColor();
    void mapsIds_data();
    void mapsIds();
    void followsThePaletteInPlace();

private:
    std::unique_ptr<TestGuard> m_guard;
};

void tst_Colors::makesDefinitions_data()
{
    QTest::addColumn<ColorDefinition>("definition");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("id");

    const QString names = QStringLiteral("#000");
    const QColor half(255, 0, 0, 128);
    QTest::newRow("default") << ColorDefinition() << "#000000" << QColor(Qt::black) << -1;
    QTest::newRow("color") << ColorDefinition(QColor(Qt::red), 7, 128) << "#ff0000" << half << 7;
    QTest::newRow("alpha replaced")
        << ColorDefinition(half, 7) << "#ff0000" << QColor(Qt::red) << 7;
    QTest::newRow("text kept") << ColorDefinition(names, 1000) << "#000" << QColor(Qt::black)
                               << 1000;
    QTest::newRow("no color") << ColorDefinition(QStringLiteral("#12"), 3) << "#12" << QColor()
                              << 3;
    QTest::newRow("alpha too big")
        << ColorDefinition(QColor(Qt::red), 7, 999) << "#ff0000" << QColor(Qt::red) << 7;
}

void tst_Colors::makesDefinitions()
{
    QFETCH(ColorDefinition, definition);
    QTEST(definition.GetColorString(), "text");
    QTEST(definition.GetColor(), "color");
    QTEST(int(definition.GetId()), "id");
}

void tst_Colors::comparesDefinitions()
{
    const ColorDefinition red(QColor(Qt::red), 5, 10);
    QVERIFY(red == ColorDefinition(QColor(Qt::red), 5, 20));
    QVERIFY(!(red == ColorDefinition(QStringLiteral("red"), 5, 10)));
    QVERIFY(!(red == ColorDefinition(QColor(Qt::red), 6, 10)));
    QVERIFY(red < ColorDefinition(QColor(Qt::black), 6));
    QVERIFY(!(red < ColorDefinition(QColor(Qt::black), 5)));
}

void tst_Colors::placesByIdWithoutMoving()
{
    ColorDefinitionSet set(2);
    set.Add(QColor(Qt::red), 2004);
    set.Add(QColor(Qt::green), 1001);
    set.Add(QColor(Qt::blue), -1);
    set.Add(QColor(Qt::blue), std::numeric_limits<qint32>::min());
    QCOMPARE(set.GetCount(), 5);
    QCOMPARE(set.At(1)->GetId(), 1001);
    QCOMPARE(set.At(3)->GetId(), -1);
    QCOMPARE(set.At(4)->GetId(), 2004);
    QVERIFY(!set.At(5) && !set.At(-1));

    const ColorDefinition* first = set.At(0);
    set.Add(QColor(Qt::green), 1999);
    QCOMPARE(set.GetCount(), 1000);
    QCOMPARE(set.At(0), first);
    set.Add(QColor(Qt::blue), 0);
    QCOMPARE(first->GetColor(), QColor(Qt::blue));
}

void tst_Colors::findsByColor()
{
    ColorDefinitionSet& palette = Colors::Instance().GetColors();
    QCOMPARE(palette.Find(QColor(0x63, 0xb8, 0xff))->GetId(), 1085);
    QCOMPARE(palette.Find(QStringLiteral("#63b8ff"))->GetId(), 1085);
    QCOMPARE(palette.Find(QColor::fromHsv(120, 255, 255))->GetId(), 1010);
    QVERIFY(!palette.Find(QColor(Qt::white)));
    QVERIFY(!palette.Find(QColor(0, 0, 0, 254)));
    QVERIFY(!palette.Find(QColor()));
    QVERIFY(!palette.Find(QStringLiteral("#63B8FF")));
    QCOMPARE(Colors::Instance().GetUserColors().Find(QColor(Qt::white))->GetId(), 2000);
}

void tst_Colors::mapsIds_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("color"); // empty: no entry

    QTest::newRow("first") << 1000 << "Black"
                           << "#000000";
    QTest::newRow("almost white") << 1015 << "White"
                                  << "#fffffe";
    QTest::newRow("last") << 1097 << "SteelBlue 2"
                          << "#63b8ff";
    QTest::newRow("behind") << 1098 << "Undefined"
                            << "";
    QTest::newRow("1500") << 1500 << "Undefined"
                          << "";
    QTest::newRow("first user") << 2000 << "user 01"
                                << "#ffffff";
    QTest::newRow("last user") << 2015 << "user 16"
                               << "#ffffff";
    QTest::newRow("no user") << 2016 << "Undefined"
                             << "";
    QTest::newRow("no system") << 6 << "Undefined"
                               << "";
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << "Undefined"
                              << "";
    QTest::newRow("largest") << std::numeric_limits<int>::max() << "Undefined"
                             << "";
}

void tst_Colors::mapsIds()
{
    QFETCH(int, id);
    QTEST(Colors::GetName4Id(id), "name");
    const ColorDefinition* definition = Colors::Instance().GetColorDefinition(id);
    QTEST(definition ? definition->GetColor().name() : QString(), "color");
    if (definition)
        QCOMPARE(definition->GetId(), id);
}

void tst_Colors::followsThePaletteInPlace()
{
    const ColorDefinition* background = Colors::Instance().GetColorDefinition(0);
    const QPalette former = QGuiApplication::palette();
    QCOMPARE(background->GetColor(), former.color(QPalette::Active, QPalette::Window));
    QPalette changed = former;
    changed.setColor(QPalette::Window, QColor(1, 2, 3));
    QGuiApplication::setPalette(changed);
    Colors::Instance().RestoreSystemColors();
    QCOMPARE(background->GetColor(), QColor(1, 2, 3));
    QCOMPARE(background->GetName(), QStringLiteral("System::Background"));
    QGuiApplication::setPalette(former);
    Colors::Instance().RestoreSystemColors();
}

QTEST_MAIN(tst_Colors)
#include "tst_colors.moc"
