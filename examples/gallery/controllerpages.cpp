// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/binding/create.h>
#include <guibase/inputs/controllers/controllerdial.h>
#include <guibase/inputs/controllers/controllerslider.h>
#include <valueframework/value.h>

#include <QHBoxLayout>

namespace gallery {

namespace {

/// The same controller in all states; `setUp` gives it its range and value.
template <typename Controller, typename SetUp>
void addStates(Specimens& specimens, const QString& name, SetUp setUp)
{
    QList<QWidget*> row;
    for (int state = 0; state < 5; ++state) {
        auto* controller = new Controller;
        setUp(*controller);
        if (state == 1)
            controller->setValue(controller->minimum());
        else if (state == 2)
            controller->reset();
        controller->setTextVisible(state != 3);
        controller->setEnabled(state != 4);
        row << controller;
    }
    specimens.addRow(name, row);
}

void setGain(AbstractController& controller)
{
    controller.setRange(-30, 30);
    controller.setSingleStep(0.5);
    controller.setUnit(QStringLiteral("dB"));
    controller.setValue(12.5);
}

/// Two controllers of one value.
class SharedValue : public QWidget
{
public:
    SharedValue()
    {
        auto* row = new QHBoxLayout(this);
        auto* slider = new ControllerSlider;
        slider->setMinimumWidth(160);
        auto* dial = new ControllerDial;
        for (AbstractController* controller : QList<AbstractController*>{slider, dial}) {
            controller->setUnit(QStringLiteral("%"));
            row->addWidget(controller);
        }
        ValueWidgetBinding::Internal::Create(m_volume, *slider);
        ValueWidgetBinding::Internal::Create(m_volume, *dial);
    }

private:
    ValueNumeric<double> m_volume{QStringLiteral("volume"), 35, 0, 100};
};

} // namespace

QWidget* makeControllers()
{
    auto* all = new Specimens({QStringLiteral("Value"), QStringLiteral("Minimum"),
                               QStringLiteral("Default"), QStringLiteral("Without text"),
                               QStringLiteral("Disabled")});
    addStates<ControllerSlider>(*all, QStringLiteral("ControllerSlider"), &setGain);
    addStates<ControllerSlider>(*all, QStringLiteral("right to left"),
                                [](ControllerSlider& slider) {
                                    setGain(slider);
                                    slider.setLayoutDirection(Qt::RightToLeft);
                                });
    addStates<ControllerSlider>(*all, QStringLiteral("vertical"), [](ControllerSlider& slider) {
        setGain(slider);
        slider.setOrientation(Qt::Vertical);
        slider.setMinimumHeight(140);
    });
    addStates<ControllerDial>(*all, QStringLiteral("ControllerDial"), &setGain);
    all->addRow(QStringLiteral("Bound to one value"), {new SharedValue});
    all->addNote(QStringLiteral("Ctrl makes fine steps, a double click on the handle brings the "
                                "default value back."));
    return all;
}

} // namespace gallery
