// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/binding/create.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/editor/colorcircle.h>
#include <guibase/colors/editor/colorsctrl.h>
#include <guibase/colors/editor/colorselect.h>
#include <guibase/formats/frequencydisplayformat.h>
#include <guibase/frequencies/suffixeddouble.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/spinboxes.h>
#include <guibase/notifications/popup/standardnotification.h>
#include <guibase/services/guibase.h>
#include <valueframework/value.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDial>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>

#include <functional>

namespace gallery {

namespace {

StandardNotification* makePopUp(const QString& title, const QString& text,
                                QStyle::StandardPixmap picture,
                                QDialogButtonBox::StandardButtons buttons, const QColor& color)
{
    auto* popUp = new StandardNotification;
    popUp->setColor(color);
    popUp->setTitle(title);
    popUp->setText(text);
    popUp->setIcon(popUp->style()->standardIcon(picture).pixmap(48));
    popUp->setButtons(buttons);
    popUp->setMinimumWidth(320);
    return popUp;
}

/// A page with values of its own.
class BoundPage : public QWidget
{
public:
    BoundPage();

private:
    ValueNumeric<int> m_level{QStringLiteral("level"), 30, 0, 50};
    ValueNumeric<int> m_unlimited{QStringLiteral("unlimited"), 1000};
    ValueNumeric<qint64> m_frequency{QStringLiteral("frequency"), 14'225'000};
    Value<bool> m_muted{QStringLiteral("muted"), true};
};

BoundPage::BoundPage()
{
    using ValueWidgetBinding::Internal::Create;
    auto* all = new Specimens({QStringLiteral("Bound widgets of one value")});
    (new QHBoxLayout(this))->addWidget(all);
    auto* spin = new QSpinBox;
    auto* typed = new SpinBoxes::Int32SpinBox;
    auto* slider = new QSlider(Qt::Horizontal);
    auto* dial = new QDial;
    auto* bar = new QProgressBar;
    Create(m_level, *spin);
    Create(m_level, *typed);
    Create(m_level, *slider);
    Create(m_level, *dial);
    Create(m_level, *bar);
    for (QWidget* widget : QList<QWidget*>{spin, typed, slider, dial, bar})
        all->addRow(QString::fromLatin1(widget->metaObject()->className()), {widget});

    auto* frequency = new SpinBoxes::FrequencySpinBox;
    Create(m_frequency, *frequency);
    all->addRow(QStringLiteral("A frequency"), {frequency});
    auto* box = new QCheckBox(QStringLiteral("Muted"));
    Create<Value<bool>, QAbstractButton>(m_muted, *box);
    all->addRow(QStringLiteral("A truth"), {box});
    auto* narrow = new QSpinBox; // 0 to 99
    Create(m_unlimited, *narrow);
    all->addRow(QStringLiteral("A value that the box cannot show"), {narrow});
    auto* orphan = new QSpinBox;
    {
        ValueNumeric<int> gone(QStringLiteral("gone"), 7);
        Create(gone, *orphan);
    }
    all->addRow(QStringLiteral("The value is gone"), {orphan});
}

} // namespace

QWidget* makeColorEditor()
{
    return new ColorsCtrl;
}

QWidget* makeColorPickers()
{
    auto* all = new Specimens({QStringLiteral("Chosen"), QStringLiteral("Disabled")});
    // Once more with every change of the colours.
    const auto keepShown = [](QWidget& widget, const std::function<void()>& show) {
        show();
        QObject::connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, &widget, show);
    };
    const auto addRow = [all, keepShown](const QString& name, IColorBase::ECOLOR slot) {
        QList<QWidget*> row;
        for (const bool enabled : {true, false}) {
            auto* picker = new ColorSelect;
            keepShown(*picker, [picker, slot] {
                picker->Select(ColorSet::Instance().GetColorDefinition(slot)->GetColorString());
            });
            picker->setEnabled(enabled);
            row << picker;
        }
        all->addRow(name, row);
    };
    addRow(QStringLiteral("Main curve"), IColorBase::DrawPaneMainCurve);
    addRow(QStringLiteral("Background"), IColorBase::DrawPaneBackgroundLow);
    QList<QWidget*> circles;
    for (const bool enabled : {true, false}) {
        auto* circle = new ColorCircle;
        circle->setColor(ColorSet::Instance().GetColor(IColorBase::DrawPaneMainCurve));
        circle->setEnabled(enabled);
        circles << circle;
    }
    all->addRow(QStringLiteral("ColorCircle"), circles);
    QComboBox* sets = ColorSet::Instance().GetColorSetsComboBox(nullptr);
    keepShown(*sets, [sets] { ColorSet::Instance().UpdateComboBox(sets); });
    all->addRow(QStringLiteral("Sets of colours"), {sets});
    return all;
}

QWidget* makePopUps()
{
    using Button = QDialogButtonBox;
    auto* page = new QWidget;
    auto* layout = new QGridLayout(page);
    const auto add = [layout](StandardNotification* popUp, int row, int column) {
        layout->addWidget(popUp, row, column, Qt::AlignTop | Qt::AlignLeft);
    };
    add(makePopUp(QStringLiteral("Job done"), QStringLiteral("The scan has ended."),
                  QStyle::SP_MessageBoxInformation, Button::Close,
                  StandardNotification::defaultColor()),
        0, 0);
    add(makePopUp(QStringLiteral("Signal"), QStringLiteral("Tune to <b>14.225 MHz</b>?"),
                  QStyle::SP_MessageBoxQuestion, Button::Yes | Button::No,
                  QColor(0xff, 0xc8, 0x64)),
        0, 1);
    add(makePopUp(QStringLiteral("No antenna"), QStringLiteral("The receiver hears nothing."),
                  QStyle::SP_MessageBoxCritical, Button::Retry | Button::Cancel,
                  QColor(0xd0, 0x28, 0x28)),
        1, 0);
    add(makePopUp(QStringLiteral("A long text"),
                  QStringLiteral("The beginning is shown and the rest is cut. ").repeated(40),
                  QStyle::SP_MessageBoxInformation, Button::Close,
                  StandardNotification::defaultColor()),
        1, 1);
    layout->setRowStretch(2, 1);
    layout->setColumnStretch(2, 1);
    return page;
}

QWidget* makeBindings()
{
    return new BoundPage;
}

QWidget* makeKeys()
{
    return GuiBase::Instance().GetHotkeysCtrl(nullptr);
}

QWidget* makeFrequencies()
{
    auto* all = new Specimens({QStringLiteral("7.1 MHz"), QStringLiteral("14.225001 MHz")});
    SuffixedDouble text(QStringLiteral("Hz"), 1000, true);
    const auto addRow = [all](const QString& name, auto write) {
        all->addRow(name, {new QLabel(write(7'100'000)), new QLabel(write(14'225'001))});
    };
    addRow(QStringLiteral("GetString()"), [&](double hz) { return text.GetString(hz); });
    addRow(QStringLiteral("GetShortString()"), [&](double hz) { return text.GetShortString(hz); });
    addRow(QStringLiteral("GetSignificantString()"),
           [&](double hz) { return text.GetSignificantString(hz); });
    addRow(QStringLiteral("GetShortestString()"),
           [&](double hz) { return text.GetShortestString(hz); });
    addRow(QStringLiteral("GetExtraString()"), [&](double hz) { return text.GetExtraString(hz); });
    addRow(QStringLiteral("FrequencyDisplayFormat"), [](qint64 hz) {
        return FrequencyDisplayFormat(UnitPrefix::Mega).fullTextFromValue(hz);
    });
    return all;
}

} // namespace gallery
