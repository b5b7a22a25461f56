// SPDX-License-Identifier: MIT
#include <guibase/colors/colors.h>

#include "support/guardedtest.h"

#include <QApplication>
#include <QPalette>

#include <limits>

class tst_Colors : public GuardedTest
{
    Q_OBJECT
    using Ids = TestRows<int, QString, QString>;

private Q_SLOTS:
    void cutsAlphaToItsRange()
    {
        QCOMPARE(ColorDefinition(QColor(255, 0, 0, 128), 7, 999).GetColor(), QColor(Qt::red));
        QVERIFY(!ColorDefinition(QStringLiteral("#12"), 3).GetColor().isValid());
    }
    void placesByIdWithoutMoving()
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
    void findsByColor()
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
    void mapsIds_data()
    {
        Ids row;
        row.add(1097, "SteelBlue 2", "#63b8ff");
        row.add(2015, "user 16", "#ffffff");
        for (const int unused : {6, 1098, 1500, 2016, std::numeric_limits<int>::min(),
                                 std::numeric_limits<int>::max()})
            row.add(unused, "Undefined", "");
    }
    void mapsIds()
    {
        const auto& [id, name, color] = Ids::fetch();
        QCOMPARE(Colors::GetName4Id(id), name);
        const ColorDefinition* definition = Colors::Instance().GetColorDefinition(id);
        QCOMPARE(definition ? definition->GetColor().name() : QString(), color);
        QCOMPARE(definition ? definition->GetId() : id, id);
    }
    void followsThePaletteInPlace()
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
};

QTEST_MAIN(tst_Colors)
#include "tst_colors.moc"
