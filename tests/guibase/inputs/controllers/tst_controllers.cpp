// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/mouse.h"

#include <guibase/binding/create.h>
#include <guibase/inputs/controllers/controllerdial.h>
#include <guibase/inputs/controllers/controllerslider.h>
#include <guibase/undo/guiundorecordinghelper.h>
#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

#include <QAccessible>
#include <QUndoStack>

#include <cmath>

namespace {

/// A controller of 300 pixels without text, from 0 to 100, at 50.
template <typename Controller>
struct Dragged
{
    explicit Dragged(double value = 50)
    {
        controller.setTextVisible(false);
        controller.resize(300, 300);
        controller.setValue(value);
    }
    QPoint middle() const { return controller.rect().center(); }
    void press(QPoint from) { QTest::mousePress(&controller, Qt::LeftButton, {}, from); }
    void move(QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        dragMouse(controller, to, modifiers);
    }
    void release(QPoint at) { QTest::mouseRelease(&controller, Qt::LeftButton, {}, at); }

    Controller controller;
};

} // namespace

class tst_Controllers : public GuardedTest
{
    Q_OBJECT
    using Keys = TestRows<double, QString, double>;

private Q_SLOTS:
    void keys_data()
    {
        Keys row; // value, keys, value; r, l, u, d, p, n with Ctrl in capitals; w is the wheel
        row("steps", 0.1, "ruu", 0.7);
        row("back", 0.1, "ld", -0.3);
        row("fine", 0.1, "RRU", 0.25);
        row("pages", 0, "pn p", 2);
        row("fine page", 0, "P", 0.5);
        row("ends", 0, "e", 3.3);
        row("lowest", 0, "h", -3.3);
        row("not beyond", 3.2, "u", 3.3);
        row("default", 3, "x", 0.5);
        row("wheel", 0, "wwW", 0.45);
        row("fine wheels", 0, "..", 0.2);
    }
    void keys()
    {
        const auto& [value, keys, expected] = Keys::fetch();
        ControllerSlider slider;
        slider.setRange(3.3, -3.3);
        slider.setSingleStep(0.2);
        slider.setFineStep(0.05);
        slider.setDefaultValue(0.5);
        slider.setValue(value);
        turnWheel(slider, 120); // without the focus
        slider.show();
        QVERIFY(QTest::qWaitForWindowActive(&slider));
        slider.setFocus();
        static const QHash<QChar, Qt::Key> keyOf{
            {u'r', Qt::Key_Right}, {u'l', Qt::Key_Left},   {u'u', Qt::Key_Up},
            {u'd', Qt::Key_Down},  {u'p', Qt::Key_PageUp}, {u'n', Qt::Key_PageDown},
            {u'h', Qt::Key_Home},  {u'e', Qt::Key_End},    {u'x', Qt::Key_Delete}};
        for (const QChar key : keys) {
            const auto modifiers = key.isUpper() ? Qt::ControlModifier : Qt::NoModifier;
            if (key == u'.')
                turnWheel(slider, 60);
            else if (key.toLower() == u'w')
                turnWheel(slider, 120, modifiers);
            else if (key != u' ')
                QTest::keyClick(&slider, keyOf.value(key.toLower()), modifiers);
        }
        QCOMPARE(slider.value(), expected);
    }
    void slidersAreDraggedFromWhereTheyAre()
    {
        Dragged<ControllerSlider> dragged;
        ControllerSlider& slider = dragged.controller;
        const QSignalSpy pressed(&slider, &ControllerSlider::sliderPressed);
        const QPoint middle = dragged.middle();
        dragged.press(middle + QPoint(3, 0));
        QCOMPARE(slider.value(), 50.0);
        dragged.move(middle + QPoint(63, 0));
        const double moved = slider.value() - 50;
        QVERIFY(moved > 18 && moved < 26 && moved == std::round(moved));
        dragged.move(middle + QPoint(123, 0), Qt::ControlModifier);
        const double fine = slider.value() - 50 - moved;
        QVERIFY(fine > 1.8 && fine < 2.6);
        QTest::keyClick(&slider, Qt::Key_Escape);
        QCOMPARE(slider.value(), 50.0);
        QVERIFY(!slider.isSliderDown());
        dragged.release(middle);
        QCOMPARE(pressed.size(), 1);

        QTest::mouseClick(&slider, Qt::LeftButton, {}, {5, middle.y()}); // beside the handle
        QTest::mouseDClick(&slider, Qt::LeftButton, {}, {5, middle.y()});
        QVERIFY(slider.value() <= 30 && slider.value() > 0);
        slider.setValue(50);
        QTest::mouseDClick(&slider, Qt::LeftButton, {}, middle);
        QCOMPARE(slider.value(), 0.0);
    }
    void verticalAndMirroredSliders()
    {
        Dragged<ControllerSlider> dragged;
        const QPoint middle = dragged.middle();
        dragged.controller.setLayoutDirection(Qt::RightToLeft);
        dragged.press(middle);
        dragged.move(middle - QPoint(30, 0));
        dragged.release(middle);
        QVERIFY(dragged.controller.value() > 50);
        dragged.controller.setOrientation(Qt::Vertical);
        dragged.controller.setValue(50);
        dragged.press(middle);
        dragged.move(middle + QPoint(0, 30));
        QVERIFY(dragged.controller.value() < 50);
        dragged.release(middle);
    }
    void dialsTurnWithThePointer()
    {
        Dragged<ControllerDial> dragged;
        ControllerDial& dial = dragged.controller;
        const QPoint middle = dragged.middle();
        dragged.press(middle + QPoint(100, 0));
        QCOMPARE(dial.value(), 50.0);
        dragged.move(middle + QPoint(0, 100)); // with the clock by 90° of 300°
        QCOMPARE(dial.value(), 80.0);
        dragged.move(middle + QPoint(0, 2));
        dragged.move(middle - QPoint(100, 2)); // over the centre, which tells no direction
        QCOMPARE(dial.value(), 80.0);
        for (const QPoint way : {QPoint(0, -100), QPoint(100, 0)})
            dragged.move(middle + way);
        QCOMPARE(dial.value(), 100.0);
        dragged.move(middle - QPoint(0, 100)); // back at once
        QCOMPARE(dial.value(), 70.0);
        dragged.release(middle);
        QTest::mouseDClick(&dial, Qt::LeftButton, {}, middle);
        QCOMPARE(dial.value(), 0.0);
    }
    void texts()
    {
        ControllerDial dial;
        dial.setUnit(QStringLiteral("dB"));
        dial.setRange(-10, 10);
        dial.setValue(-2.4);
        QCOMPARE(dial.textValue(), QStringLiteral("-2.4 dB"));
        dial.setFineStep(0.25);
        QCOMPARE(dial.textValue(), QStringLiteral("-2.40 dB"));
        dial.setDecimals(0);
        dial.setValue(qQNaN());
        dial.setRange(0, qInf());
        QCOMPARE(dial.textValue(), QStringLiteral("-2 dB"));
        const QSize narrow = dial.sizeHint();
        dial.setRange(-1e9, 1e9);
        QVERIFY(dial.sizeHint().width() > narrow.width());

        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&dial);
        QCOMPARE(interface->role(), QAccessible::Dial);
        interface->valueInterface()->setCurrentValue(7);
        QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("7 dB"));
        QCOMPARE(interface->valueInterface()->maximumValue(), QVariant(1e9));
    }
    /// The value is that of the tree; a drag, and then another one, are one undo step each.
    void dragsAreUndoSteps()
    {
        ValueNumeric<double> gain(QStringLiteral("gain"), 50, 0, 100);
        Tree::Instance().Add(QStringLiteral("receiver"), &gain);
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(QStringLiteral("receiver"));
        QUndoStack& undo = *UndoRecording::Instance().stack();
        undo.clear();
        Dragged<ControllerDial> dragged;
        ValueWidgetBinding::Internal::Create(gain, dragged.controller);
        const QPoint middle = dragged.middle();
        for (int drag = 0; drag < 2; ++drag) {
            dragged.press(middle + QPoint(100, 0));
            for (const int down : {20, 50, 100})
                dragged.move(middle + QPoint(100, down));
            dragged.release(middle);
        }
        QCOMPARE(gain.GetValue(), 80.0);
        QCOMPARE(undo.count(), 2);
        undo.undo();
        QCOMPARE(dragged.controller.value(), 65.0);
        undo.undo();
        QCOMPARE(dragged.controller.value(), 50.0);
        undo.clear();
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath({});
    }
};

QTEST_MAIN(tst_Controllers)
#include "tst_controllers.moc"
