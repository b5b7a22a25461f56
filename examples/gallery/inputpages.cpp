// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/formats/realnumberdisplayformat.h>
#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/coordinates/maskedlineedit.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <QDateTime>
#include <QLineEdit>
#include <QTimer>

namespace gallery {

namespace {

QStringList states()
{
    return {QStringLiteral("Value"), QStringLiteral("Being typed"), QStringLiteral("Refused"),
            QStringLiteral("Read-only"), QStringLiteral("Disabled")};
}

/// Types the text once the input is shown, which shows its value first.
template <typename Input, typename Then>
void typeSoon(Input* input, const QString& text, Then then)
{
    QTimer::singleShot(0, input, [input, text, then] {
        input->inputLineEdit()->selectAll();
        input->inputLineEdit()->insert(text); // as typing does: the text counts as changed
        then();
    });
}

/// The input in this state; `typed` can be read, `refused` cannot.
template <typename Input, typename SetUp>
Input* makeInState(int state, const QString& typed, const QString& refused, SetUp setUp)
{
    auto* input = new Input;
    setUp(*input);
    switch (state) {
    case 1:
        typeSoon(input, typed, [] {});
        break;
    case 2:
        typeSoon(input, refused, [input] { input->interpret(); });
        break;
    case 3:
        input->inputLineEdit()->setReadOnly(true);
        break;
    case 4:
        input->setEnabled(false);
        break;
    default:
        break;
    }
    return input;
}

/// The same input in all states.
template <typename Input, typename SetUp>
void addStates(Specimens& specimens, const QString& name, const QString& typed,
               const QString& refused, SetUp setUp)
{
    QList<QWidget*> row;
    for (int state = 0; state < states().size(); ++state)
        row << makeInState<Input>(state, typed, refused, setUp);
    specimens.addRow(name, row);
}

template <typename Input>
void setNumber(Input& input)
{
    input.setRange(0, 100);
    input.setValue(42);
}

template <typename Input>
void setItems(Input& input)
{
    input.setRange(0, 100);
    input.addItems({QStringLiteral("10"), QStringLiteral("42"), QStringLiteral("80")});
    input.setValue(42);
}

void addSpecialSpinBoxes(Specimens& all)
{
    using SpinBoxes::Int32SpinBox;
    addStates<Int32SpinBox>(all, QStringLiteral("with a special text"), QStringLiteral("7"),
                            QStringLiteral("on"), [](Int32SpinBox& box) {
                                box.setRange(0, 100);
                                box.setSpecialValueText(QStringLiteral("off"));
                            });
    addStates<Int32SpinBox>(all, QStringLiteral("with a guard"), QStringLiteral("8"),
                            QStringLiteral("13"), [](Int32SpinBox& box) {
                                setNumber(box);
                                box.setValueGuard([](const int& value) {
                                    return value == 13 ? QStringLiteral("Not 13.") : QString();
                                });
                            });
    addStates<Int32SpinBox>(all, QStringLiteral("at its limit; emptied"), QString(), QString(),
                            [](Int32SpinBox& box) {
                                setNumber(box);
                                box.setValue(box.maximum());
                            });
    addStates<Int32SpinBox>(all, QStringLiteral("right to left"), QStringLiteral("7"),
                            QStringLiteral("seven"), [](Int32SpinBox& box) {
                                setNumber(box);
                                box.setLayoutDirection(Qt::RightToLeft);
                            });
}

void addMaskedEdits(Specimens& all)
{
    QList<MaskedLineEdit*> edits;
    for (const char* text : {"192.168.000.001", "19", "10.0.0.1", "", "10.0.0.1", "10.0.0.1"}) {
        edits << new MaskedLineEdit;
        edits.last()->setMask(QStringLiteral("999.999.999.999"));
        edits.last()->setText(QString::fromLatin1(text));
    }
    edits.at(2)->setEnabled(false);
    edits.at(4)->setReadOnly(true);
    edits.at(5)->setLayoutDirection(Qt::RightToLeft);
    all.addRow(QStringLiteral("MaskedLineEdit"), {edits.at(0), edits.at(1), edits.at(2)});
    all.addRow(QStringLiteral("empty, read-only, right to left"),
               {edits.at(3), edits.at(4), edits.at(5)});
}

} // namespace

QWidget* makeSpinBoxes()
{
    using namespace SpinBoxes;
    auto* all = new Specimens(states());
    addStates<FrequencySpinBox>(*all, QStringLiteral("FrequencySpinBox"), QStringLiteral("7100k"),
                                QStringLiteral("7 parsec"),
                                [](FrequencySpinBox& box) { box.setValue(14'225'000); });
    addStates<QDateTimeSpinBox>(
        *all, QStringLiteral("QDateTimeSpinBox"), QStringLiteral("2026-01-01 12:00"),
        QStringLiteral("tomorrow"), [](QDateTimeSpinBox& box) {
            auto format = std::make_unique<QDateTimeDisplayFormat>();
            format->setDateTimeFormat(QStringLiteral("yyyy-MM-dd hh:mm"));
            box.addDisplayFormat(std::move(format));
            box.setCurrentDisplayFormatIndex(0);
            box.setValue(QDateTime(QDate(2026, 3, 1), QTime(12, 30), Qt::UTC));
        });
    addStates<DoubleSpinBox>(*all, QStringLiteral("DoubleSpinBox, in dB"), QStringLiteral("12.5"),
                             QStringLiteral("1,500"), [](DoubleSpinBox& box) {
                                 auto format = std::make_unique<RealNumberDisplayFormat<double>>();
                                 format->setPrecision(1);
                                 format->setSuffix(QStringLiteral("dB"));
                                 box.addDisplayFormat(std::move(format));
                                 box.setCurrentDisplayFormatIndex(0);
                                 box.setValue(-80);
                             });
    addStates<UInt16SpinBox>(*all, QStringLiteral("UInt16SpinBox, base 16"), QStringLiteral("beef"),
                             QStringLiteral("xyz"), [](UInt16SpinBox& box) {
                                 auto format =
                                     std::make_unique<IntegralNumberDisplayFormat<quint16>>();
                                 format->setBase(16);
                                 format->setPrefix(QStringLiteral("0x"));
                                 box.addDisplayFormat(std::move(format));
                                 box.setCurrentDisplayFormatIndex(0);
                                 box.setValue(0xcafe);
                             });
    addStates<Int8SpinBox>(*all, QStringLiteral("Int8SpinBox"), QStringLiteral("7"),
                           QStringLiteral("200"), &setNumber<Int8SpinBox>);
    addStates<Int32SpinBox>(*all, QStringLiteral("Int32SpinBox"), QStringLiteral("7"),
                            QStringLiteral("seven"), &setNumber<Int32SpinBox>);
    addStates<UInt64SpinBox>(*all, QStringLiteral("UInt64SpinBox"), QStringLiteral("7"),
                             QStringLiteral("-7"), &setNumber<UInt64SpinBox>);
    addSpecialSpinBoxes(*all);
    all->addNote(QStringLiteral("The tool tip of a refused input tells the reason."));
    return all;
}

QWidget* makeComboBoxes()
{
    using namespace ComboBoxes;
    auto* all = new Specimens(states());
    addStates<Int32ComboBox>(*all, QStringLiteral("Int32ComboBox"), QStringLiteral("50"),
                             QStringLiteral("fifty"), &setItems<Int32ComboBox>);
    addStates<UInt8ComboBox>(*all, QStringLiteral("UInt8ComboBox"), QStringLiteral("50"),
                             QStringLiteral("256"), &setItems<UInt8ComboBox>);
    addStates<DoubleComboBox>(*all, QStringLiteral("DoubleComboBox"), QStringLiteral("0.5"),
                              QStringLiteral("1,500"), &setItems<DoubleComboBox>);
    addStates<Int32ComboBox>(*all, QStringLiteral("with a special value"), QStringLiteral("50"),
                             QStringLiteral("fifty"), [](Int32ComboBox& box) {
                                 setItems(box);
                                 box.setSpecialValueText(QStringLiteral("automatic"), -1);
                                 box.setValue(-1);
                             });
    addStates<DoubleComboBox>(*all, QStringLiteral("right to left"), QStringLiteral("50"),
                              QStringLiteral("fifty"), [](DoubleComboBox& box) {
                                  setItems(box);
                                  box.setLayoutDirection(Qt::RightToLeft);
                              });
    return all;
}

QWidget* makeCoordinates()
{
    constexpr GeoPosition site{48.13731, 11.57528};
    const QString typed = QStringLiteral("JN58SD");
    const int shown = 3; // positions are too wide for all states in a row
    auto* all = new Specimens(states().first(shown));
    const auto addRow = [&](const QString& name, const QString& refused, const auto& setUp,
                            const QList<int>& which) {
        QList<QWidget*> row;
        for (const int state : which)
            row << makeInState<CoordinateEdit>(state, typed, refused, setUp);
        all->addRow(name, row);
    };
    for (int index = 0; index < coordFormatCount; ++index) {
        const auto format = static_cast<CoordFormat>(index);
        const auto setUp = [&](CoordinateEdit& edit) {
            edit.setPositionFormat(format);
            edit.setValue(site);
        };
        addRow(getTranslatedCoordFormatName(format), QStringLiteral("91 11"), setUp, {0, 1, 2});
        if (index == 0)
            addRow(QStringLiteral("read-only, disabled"), {}, setUp, {3, 4});
    }
    const auto inArea = [&](CoordinateEdit& edit) {
        edit.setArea({47, 8, 50, 13});
        edit.setValue(site);
    };
    addRow(QStringLiteral("in an area"), QStringLiteral("52.5 13.4"), inArea, {0, 1, 2});
    const auto mirrored = [&](CoordinateEdit& edit) {
        edit.setPositionFormat(CoordFormat::SignedDegrees);
        edit.setValue(site);
        edit.setLayoutDirection(Qt::RightToLeft);
    };
    addRow(QStringLiteral("right to left"), QStringLiteral("91 11"), mirrored, {0, 1, 2});
    addMaskedEdits(*all);
    all->addNote(
        QStringLiteral("A text in any format is taken; the tool tip of a refused one tells "
                       "the reason."));
    return all;
}

} // namespace gallery
