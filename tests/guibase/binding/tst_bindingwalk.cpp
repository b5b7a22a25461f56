// SPDX-License-Identifier: MIT
#include <guibase/binding/create.h>
#include <guibase/inputs/spinboxes/spinboxes.h>
#include <guibase/undo/guiundorecordinghelper.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <optional>

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
};

QTEST_MAIN(tst_BindingWalk)
#include "tst_bindingwalk.moc"
