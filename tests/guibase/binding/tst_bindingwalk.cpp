// SPDX-License-Identifier: MIT
#include <guibase/binding/bindingrows_p.h>
#include <guibase/binding/create.h>
#include <guibase/binding/formbinding.h>
#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/controllers/controllerdial.h>
#include <guibase/inputs/controllers/controllerslider.h>
#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/undo/guiundorecordinghelper.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDial>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QSpinBox>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <type_traits>

using namespace ValueWidgetBinding::Internal;

namespace {

/// Values and widgets that come, go and change at random, also while others are told of a change.
class World
{
public:
    World() { GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(m_base); }
    ~World()
    {
        m_depth = deepest;
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath({});
    }

    void act()
    {
        static constexpr void (World::*actions[])() = {
            &World::renewNumber, &World::renewSelection, &World::renewWidget, &World::bind,
            &World::unbind,      &World::change,         &World::change,      &World::enter,
            &World::enter,       &World::changeLimits,   &World::replay,      &World::passTime,
            &World::record};
        if (m_depth == deepest)
            return;
        ++m_depth;
        (this->*actions[std::size_t(m_random.below(int(std::size(actions))))])();
        --m_depth;
    }

    /// Empty when every widget shows its value.
    QString fault() const
    {
        for (std::size_t i = 0; i < m_numbers.size(); ++i) {
            const QSpinBox* box = m_boxes[i].get();
            if (m_bindings[i] && m_bindings[i]->delay() < 0 && box->isEnabled() &&
                box->value() != m_bindings[i]->value()->GetValue())
                return QStringLiteral("shows %1 for %2")
                    .arg(box->value())
                    .arg(m_bindings[i]->value()->GetValue());
        }
        return m_list && m_choice && m_listBinding && m_choice->isEnabled() &&
                       m_choice->currentIndex() != m_list->GetCurrentIndex()
                   ? QStringLiteral("shows another item")
                   : QString();
    }

private:
    using Number = ValueNumeric<int>;
    static constexpr int deepest = 3;

    static void clearLimits(QSpinBox& box)
    {
        box.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }
    std::size_t any() { return std::size_t(m_random.below(int(m_numbers.size()))); }

    void renewNumber()
    {
        const std::size_t i = any();
        m_numbers[i].reset();
        m_numbers[i] = std::make_unique<Number>(QStringLiteral("number%1").arg(i));
        Tree::Instance().Add(m_base, m_numbers[i].get());
    }
    void renewSelection()
    {
        m_list.reset();
        m_list = std::make_unique<ValueSelection>(QStringLiteral("list"));
        Tree::Instance().Add(m_base, m_list.get());
    }
    void renewWidget()
    {
        const std::size_t i = any();
        m_boxes[i].reset();
        auto box = std::make_unique<QSpinBox>();
        clearLimits(*box);
        QObject::connect(box.get(), &QSpinBox::valueChanged, box.get(), [this] { act(); });
        m_boxes[i] = std::move(box);
        if (m_depth > 1)
            return; // Combo boxes do not survive it when one of their slots deletes them.
        m_choice = std::make_unique<QComboBox>();
        QObject::connect(m_choice.get(), &QComboBox::currentIndexChanged, m_choice.get(),
                         [this] { act(); });
    }
    void bind()
    {
        const std::size_t i = any();
        if (m_list && m_choice && !m_listBinding)
            m_listBinding = Create<ValueSelection, QComboBox>(*m_list, *m_choice, {}, {});
        if (!m_numbers[i] || !m_boxes[i] || m_bindings[i])
            return;
        clearLimits(*m_boxes[i]);
        if (!m_numbers[i] || !m_boxes[i] || m_bindings[i])
            return; // The box has told of another value.
        const QPointer made = Create<Number, QSpinBox>(*m_numbers[i], *m_boxes[i]);
        if (m_bindings[i])
            delete made; // Who was told of the first value has made another one.
        else
            m_bindings[i] = made;
        if (m_bindings[i] && m_random.below(3) == 0)
            m_bindings[i]->setDelay(0);
    }
    void unbind()
    {
        delete m_bindings[any()];
        if (m_random.below(4) == 0)
            delete m_listBinding;
    }
    void change()
    {
        if (Number* number = m_numbers[any()].get())
            number->SetAsDouble(
                std::array{std::nan(""), 1e300, -3.5, 7.0,
                           double(m_random.below(2000))}[std::size_t(m_random.below(5))]);
        if (m_list && m_random.below(3) == 0) {
            std::vector<SelectionItem> items;
            for (int key = m_random.below(4); key > 0; --key)
                items.emplace_back(QString::number(key), m_random.below(5) == 0, key);
            m_list->SetItems(items);
        }
    }
    void changeLimits()
    {
        if (Number* number = m_numbers[any()].get())
            number->SetRange(-m_random.below(1000), m_random.below(1000));
        if (Number* number = m_numbers[any()].get())
            number->SetState(m_random.below(4) == 0 ? Observable::Disabled : Observable::Enabled);
    }
    void enter()
    {
        if (QSpinBox* box = m_boxes[any()].get()) {
            box->show();
            box->setValue(m_random.below(2000) - 1000);
        }
        if (m_choice && m_choice->isEnabled()) {
            if (m_choice->count() > 0 && !m_choice->view()->isVisible()) {
                QTest::ignoreMessage(QtWarningMsg,
                                     "This plugin does not support grabbing the keyboard");
                m_choice->showPopup();
            }
            if (m_choice && m_random.below(2) == 0)
                m_choice->setCurrentIndex(m_random.below(4) - 1);
        }
    }
    void replay()
    {
        if (m_random.below(2) == 0)
            UndoRecording::Instance().undo();
        else
            UndoRecording::Instance().redo();
    }
    void passTime()
    {
        if (m_random.below(2) == 0)
            PendingWrite::WriteAll();
        else if (m_depth == 1)
            QCoreApplication::processEvents();
    }
    void record()
    {
        if (m_recording)
            m_recording.reset();
        else if (QSpinBox* box = m_boxes[any()].get())
            m_recording = GuiUndoRecordingHelper(*box, QStringLiteral("step"));
    }

    const QString m_base = QStringLiteral("walk");
    RandomBytes m_random{"bindings"};
    int m_depth = 0;
    std::optional<GuiUndoRecordingHelper> m_recording;
    std::array<std::unique_ptr<Number>, 3> m_numbers;
    std::unique_ptr<ValueSelection> m_list;
    std::array<std::unique_ptr<QSpinBox>, 3> m_boxes;
    std::unique_ptr<QComboBox> m_choice;
    std::array<QPointer<ValueWidgetBindingBase<Number, QSpinBox>>, 3> m_bindings;
    QPointer<ValueWidgetBindingBase<ValueSelection, QComboBox>> m_listBinding;
};

template <typename V>
ValueBase* makeValue(const QString& name)
{
    return new V(name);
}

template <typename W>
QWidget* makeWidget(QWidget* parent)
{
    return new std::conditional_t<std::is_same_v<W, QAbstractButton>, QCheckBox, W>(parent);
}

/// A value and a widget of classes that can be bound.
struct Kind
{
    ValueBase* (*makeValue)(const QString& name);
    QWidget* (*makeWidget)(QWidget* parent);
};
template <typename V, typename W>
constexpr Kind kindOf{makeValue<V>, makeWidget<W>};
#define KIND(V, W) kindOf<V, W>,
constexpr Kind kinds[] = {GUIBASE_FOR_EACH_BINDING(KIND) //
                          KIND(ValueSelection, QComboBox) KIND(ValueSelection, QLabel)};
#undef KIND

/// A form with a widget of every kind, bound to values that come, go and change at random.
class Form
{
public:
    Form()
    {
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(m_base);
        for (std::size_t i = 0; i < std::size(kinds); ++i) {
            renewValue(i);
            renewWidget(i);
        }
        m_form.show();
    }
    ~Form() { GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath({}); }

    /// Empty, or what went wrong.
    QString act()
    {
        const auto i = std::size_t(m_random.below(int(std::size(kinds))));
        switch (m_random.below(12)) {
        case 0:
            renewValue(i);
            break;
        case 1:
            renewWidget(i);
            break;
        case 2:
            ValueWidgetBinding::BindForm(m_form, m_base, m_random.below(4) == 0 ? 0 : -1);
            break;
        case 3:
            UndoRecording::Instance().undo();
            break;
        case 4:
            UndoRecording::Instance().redo();
            break;
        case 5:
            m_values[i]->SetState(m_random.below(2) == 0 ? Observable::Disabled
                                                         : Observable::Enabled);
            break;
        case 6:
            PendingWrite::WriteAll();
            QCoreApplication::processEvents();
            break;
        case 7:
        case 8:
            return change(i);
        default:
            enter(i);
        }
        return {};
    }

private:
    static QString nameOf(std::size_t i) { return QStringLiteral("kind%1").arg(i); }

    static void fill(ValueBase& value)
    {
        if (auto* selection = dynamic_cast<ValueSelection*>(&value))
            selection->SetItems({SelectionItem(QStringLiteral("a"), false, 7),
                                 SelectionItem(QStringLiteral("b"), true, 12),
                                 SelectionItem(QStringLiteral("c"), false, 0)});
    }
    void renewValue(std::size_t i)
    {
        m_values[i].reset();
        m_values[i].reset(kinds[i].makeValue(nameOf(i)));
        fill(*m_values[i]);
        Tree::Instance().Add(m_base, m_values[i].get());
    }
    void renewWidget(std::size_t i)
    {
        delete m_widgets[i];
        m_widgets[i] = kinds[i].makeWidget(&m_form);
        m_widgets[i]->setObjectName(nameOf(i));
        m_widgets[i]->setVisible(m_random.below(2) == 0);
    }
    QVariant anything()
    {
        static const QVariantList all = {7,
                                         -3,
                                         12.5,
                                         1e300,
                                         -1e300,
                                         std::nan(""),
                                         ~0ULL,
                                         true,
                                         QStringLiteral("12"),
                                         QStringLiteral("two\nlines"),
                                         QString(),
                                         QDateTime(QDate(2026, 3, 1), QTime(1, 2, 3, 4), Qt::UTC),
                                         QDateTime()};
        return all[m_random.below(int(all.size()))];
    }
    /// A value that the program sets becomes what it would be without a widget.
    QString change(std::size_t i)
    {
        const QVariant next = anything();
        PendingWrite::WriteAll();
        const std::unique_ptr<ValueBase> twin(kinds[i].makeValue(nameOf(i)));
        fill(*twin);
        twin->SetVariant(m_values[i]->GetVariant());
        const bool isTaken = twin->SetVariant(next);
        const bool isSame = m_values[i]->SetVariant(next) == isTaken &&
                            m_values[i]->GetVariant() == twin->GetVariant();
        return isSame ? QString()
                      : QStringLiteral("%1 becomes %2")
                            .arg(nameOf(i), m_values[i]->GetVariant().toString());
    }
    void enter(std::size_t i)
    {
        const char* property = m_widgets[i]->metaObject()->userProperty().name();
        if (property != nullptr && m_widgets[i]->isEnabled())
            m_widgets[i]->setProperty(property, anything());
    }

    const QString m_base = QStringLiteral("form");
    RandomBytes m_random{"forms"};
    QWidget m_form;
    std::array<std::unique_ptr<ValueBase>, std::size(kinds)> m_values;
    std::array<QWidget*, std::size(kinds)> m_widgets{};
};

} // namespace

class tst_BindingWalk : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void survivesEverything()
    {
        World world;
        for (int i = RandomBytes::rounds(3000); i > 0; --i) {
            world.act();
            QCOMPARE(world.fault(), QString());
        }
    }

    void survivesWithAllKindsOfWidgets()
    {
        Form form;
        for (int i = RandomBytes::rounds(3000); i > 0; --i)
            QCOMPARE(form.act(), QString());
    }
};

QTEST_MAIN(tst_BindingWalk)
#include "tst_bindingwalk.moc"
