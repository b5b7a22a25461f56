// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/typing.h"

#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/coordinates/maskedlineedit.h>
#include <guibase/services/guibase.h>
#include <valueframework/valueselection.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>

namespace {

constexpr GeoPosition munich{48.13731, 11.57528};

/// Keys, one character each: '<' Backspace, '>' Delete, '^' Home, '|' End, '@' selects all, 'v'
/// pastes the clipboard, 'u' takes back; others are typed.
void press(QWidget& widget, QLineEdit& edit, const QString& keys)
{
    for (const QChar key : keys) {
        if (key == u'<')
            QTest::keyClick(&widget, Qt::Key_Backspace);
        else if (key == u'>')
            QTest::keyClick(&widget, Qt::Key_Delete);
        else if (key == u'^')
            QTest::keyClick(&widget, Qt::Key_Home);
        else if (key == u'|')
            QTest::keyClick(&widget, Qt::Key_End);
        else if (key == u'@')
            edit.selectAll();
        else if (key == u'v')
            QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
        else if (key == u'u')
            QTest::keyClick(&widget, Qt::Key_Z, Qt::ControlModifier);
        else
            QTest::keyClick(&widget, key.toLatin1());
    }
}

} // namespace

class tst_CoordinateEdit : public GuardedTest
{
    Q_OBJECT
    using Masks = TestRows<QString, QString, QString, QString>;
    using Texts = TestRows<CoordFormat, QString, QString>;
    using Steps = TestRows<GeoPosition, CoordFormat, int, int, QString>;

private Q_SLOTS:
    void masks_data()
    {
        Masks row; // mask, clipboard, keys, text
        row("typed", "999.999", "", "^12x3456", "123.456");
        row("typed over", "999.999", "123 456", "v^9", "923.456");
        row("separator leads on", "999.999", "", "^1.5", "1__.5__");
        row("erased", "999.999", "123456", "v<<", "123.4__");
        row("over the separator", "99.99", "1234", "v^>>>", "__._4");
        row("deleted and typed again", "99.99", "1234", "v^>5>>67", "56.74");
        row("selection", "99.99", "1234", "v@5", "5_.__");
        row("taken back", "99.99", "1234", "v|<u", "12.34");
        row("letters", "[A-CX]A-9X", "", "^dxy7q", "XY-7Q");
        row("other separators", "999.999.9", "1/20-5", "v", "001.020.5");
        row("decimals", "[NS] 99.999", "s7.5", "v", "S 07.500");
        row("groups of other sizes", "9999-99", "12 34/56", "v", "1234-56");
        row("neither", "9999-99", "1 2 3", "v", "____-__");
        row("too long", "99.99", "12345", "v", "__.__");
        row("from the cursor", "99.99", "34", "^12v", "12.34");
        row("turned range", "[C-A]9", "", "^dc7", "C7");
        row("last character", "[\uFFFE-\uFFFF]9", "", "^7", "__");
        row("escaped", "\\9\\[9", "", "^5", "9[5");
        row("no slots", "abc", "", "xyz", "xyz");
    }
    void masks()
    {
        const auto& [mask, clipboard, keys, expected] = Masks::fetch();
        MaskedLineEdit edit;
        edit.setMask(mask);
        QGuiApplication::clipboard()->setText(clipboard);
        press(edit, edit, keys);
        QCOMPARE(edit.text(), expected);
        QCOMPARE(edit.isComplete(), !expected.contains(u'_') && mask != QStringLiteral("abc"));
    }
    /// Menus, drops and input methods go another way than the keys.
    void masksHoldWhateverComes()
    {
        MaskedLineEdit edit;
        edit.setText(QStringLiteral("1.2"));
        edit.setMask(QStringLiteral("99.99"));
        QCOMPARE(edit.text(), QStringLiteral("01.20"));
        const QSignalSpy told(&edit, &QLineEdit::textChanged);
        edit.setCursorPosition(1);
        edit.insert(QStringLiteral("7/8"));
        QCOMPARE(edit.text(), QStringLiteral("07.80"));
        edit.insert(QStringLiteral("x"));
        edit.setText(QStringLiteral("no number"));
        QCOMPARE(edit.text(), QStringLiteral("07.80"));
        for (const QList<QVariant>& text : told) // nobody hears of another one
            QCOMPARE(text.first().toString(), QStringLiteral("07.80"));
        edit.clear();
        QCOMPARE(edit.text(), QStringLiteral("__.__"));
    }
    void texts_data()
    {
        Texts row; // format, what is typed, what is shown; the latter begins with '!' for a refusal
        using enum CoordFormat;
        row("own", DegreesMinutesSeconds, "N 12 30 0.5 W 7 8 9", "N 12°30'00.5\" W 007°08'09.0\"");
        row("minutes", DegreesMinutes, "12.5 -7.25", "N 12°30.000' W 007°15.000'");
        row("degrees", Degrees, "JN58SD", "N 48.14583° E 011.54167°");
        row("signs", SignedDegrees, "32U PU 91587 34769", "48.13731 11.57529");
        row("UTM", Utm, "48.13731 11.57528", "32U 691587 5334769");
        row("MGRS", Mgrs, "N 48.13731 E 11.57528", "32U PU 91587 34769");
        row("locator", MaidenheadLocator, "NKMD34510823", "JN58SD");
        row("GEOREF", Georef, "48 8 14.3 11 34 31", "NKMD34510823");
        row("pole", Utm, "90 0", "N 90°00'00.0\" E 000°00'00.0\"");
        row("equator from the south", Utm, "-0.0000001 9", "32M 500000 10000000");
        row("no position", Utm, "somewhere", "!Type a position such as 32U 691587 5334769.");
        row("too far", Degrees, "91 0", "!A latitude is at most 90°.");
        row("nothing", Degrees, "", "!Type a position such as N 48.13731° E 011.57528°.");
        row("outside", SignedDegrees, "89 179.5",
            "!Type a position from -90.00000 -180.00000 to 90.00000 179.00000.");
        row("guarded", SignedDegrees, "13 13", "!Not there.");
    }
    void texts()
    {
        const auto& [format, typed, shown] = Texts::fetch();
        CoordinateEdit edit;
        edit.setPositionFormat(format);
        edit.setArea({-90, -180, 90, 179});
        edit.setValueGuard([](const GeoPosition& position) {
            return position.latitude == 13 ? QStringLiteral("Not there.") : QString();
        });
        const QString former = edit.textValue();
        for (const bool isPasted : {false, true}) {
            edit.setValue({});
            if (isPasted) {
                QGuiApplication::clipboard()->setText(typed);
                edit.inputLineEdit()->selectAll();
                QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
                if (typed.isEmpty()) // there is nothing to paste
                    edit.inputLineEdit()->clear();
            } else {
                edit.inputLineEdit()->selectAll();
                QTest::keyClick(&edit, Qt::Key_Delete);
                QTest::keyClicks(&edit, typed);
            }
            QTest::keyClick(&edit, Qt::Key_Return);
            const bool isRefused = shown.startsWith(u'!');
            QCOMPARE(edit.inputRefusal(), isRefused ? shown.mid(1) : QString());
            QCOMPARE(edit.inputLineEdit()->text(), isRefused ? former : shown);
        }
    }
    void steps_data()
    {
        Steps row; // position, format, cursor, steps (10 and more by Ctrl), text
        using enum CoordFormat;
        row("degrees", munich, DegreesMinutesSeconds, 2, 1, "N 49°08'14.3\" E 011°34'31.0\"");
        row("minutes carry", munich, DegreesMinutesSeconds, 6, -9,
            "N 47°59'14.3\" E 011°34'31.0\"");
        row("tenths", munich, DegreesMinutesSeconds, 28, -1, "N 48°08'14.3\" E 011°34'30.9\"");
        row("hemisphere", munich, DegreesMinutes, 0, -1, "S 48°08.239' E 011°34.517'");
        row("digit", munich, DegreesMinutes, 19, 10, "N 48°08.239' E 011°44.517'");
        row("behind 180°", {0, 179.5}, Degrees, 16, 1, "N 00.00000° W 179.50000°");
        row("beyond the pole", {89.5, 0}, Degrees, 3, 1, "N 89.50000° E 000.00000°");
        row("longer", {9.5, 9.5}, SignedDegrees, 8, 1, "9.50000 10.50000");
        row("decimals", munich, SignedDegrees, 3, 10, "48.23731 11.57528");
        row("digit behind a sign", {-33.5, 0}, SignedDegrees, 0, 10, "-23.50000 0.00000");
        row("easting", munich, Utm, 10, 1, "32U 691588 5334769");
        row("digit of the northing", munich, Utm, 13, 10, "32U 691587 5344769");
        row("zone", munich, Utm, 0, 1, "33U 691587 5334769");
        row("square", munich, Mgrs, 4, -1, "32U NU 91587 34769");
        row("locator", munich, MaidenheadLocator, 5, 1, "JN58SE");
        row("GEOREF", munich, Georef, 6, 2, "NKMD34530823");
    }
    void steps()
    {
        const auto& [position, format, cursor, steps, expected] = Steps::fetch();
        CoordinateEdit edit;
        edit.setPositionFormat(format);
        edit.setValue(position);
        edit.inputLineEdit()->setCursorPosition(cursor);
        const bool isDigit = steps >= 10;
        for (int i = 0; i < std::abs(isDigit ? steps / 10 : steps); ++i)
            QTest::keyClick(&edit, steps < 0 ? Qt::Key_Down : Qt::Key_Up,
                            isDigit ? Qt::ControlModifier : Qt::NoModifier);
        QCOMPARE(edit.inputLineEdit()->text(), expected);
    }
    void typesInPlaceOrFreely()
    {
        CoordinateEdit edit;
        edit.setPositionFormat(CoordFormat::DegreesMinutesSeconds);
        edit.setValue(munich);
        activate(edit);
        QTest::keyClicks(&edit, QStringLiteral("jn58")); // over the selection
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("jn58"));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.value(), (GeoPosition{48.5, 11}));
        edit.setValue(munich);
        edit.inputLineEdit()->setCursorPosition(6);
        QTest::keyClicks(&edit, QStringLiteral("9x12.5w"));
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("N 48°09'12.5\" W 011°34'31.0\""));
        edit.inputLineEdit()->setCursorPosition(2);
        press(edit, *edit.inputLineEdit(), QStringLiteral(">5"));
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("N 58°09'12.5\" W 011°34'31.0\""));
        QGuiApplication::clipboard()->setText(QStringLiteral(" 1 2\n"));
        edit.inputLineEdit()->setCursorPosition(3);
        edit.inputLineEdit()->paste(); // as a menu does
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("1 2"));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.value(), (GeoPosition{1, 2}));
    }
    void followsTheFormat()
    {
        ValueSelection& format = *GuiBase::Instance().GetPositionFormat();
        CoordinateEdit edit;
        edit.setValue(munich);
        const QSignalSpy told(&edit, &CoordinateEdit::valueChanged);
        format.SetValue(static_cast<int>(CoordFormat::Utm));
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("32U 691587 5334769"));
        edit.interpret(); // rounds nothing
        QVERIFY(told.isEmpty());
        edit.inputLineEdit()->setCursorPosition(9);
        QTest::keyClicks(&edit, QStringLiteral("8"));
        format.SetValue(static_cast<int>(CoordFormat::Mgrs));
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("32U 691588 5334769"));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edit.inputLineEdit()->text(), QStringLiteral("32U PU 91588 34769"));
        QCOMPARE(told.size(), 1);
        format.SetValue(static_cast<int>(CoordFormat::DegreesMinutesSeconds));
    }
    void tellsAssistiveTechnologies()
    {
        CoordinateEdit edit;
        edit.setPositionFormat(CoordFormat::SignedDegrees);
        edit.setArea({0, 0, 60, 30});
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&edit);
        interface->setText(QAccessible::Value, QStringLiteral("48.5 11.5"));
        QCOMPARE(edit.value(), (GeoPosition{48.5, 11.5}));
        QVERIFY(!edit.setInputValue(QStringLiteral("48.5 -11.5")));
        QVERIFY(interface->text(QAccessible::Description).contains(QStringLiteral("60.00000")));
        QVERIFY(edit.setInputValue(QVariant::fromValue(GeoPosition{1, 2})));
        QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("1.00000 2.00000"));
    }
};

QTEST_MAIN(tst_CoordinateEdit)
#include "tst_coordinateedit.moc"
