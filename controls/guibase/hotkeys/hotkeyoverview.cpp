// SPDX-License-Identifier: MIT
#include "hotkeyoverview.h"

#include "hotkeylist_p.h"
#include "hotkeyregistry.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int minimumDialogWidth = 600;
constexpr int frameWidth = 40; ///< In pixels, with the title bar.

/// The dialog around the list.
class Overview : public QDialog
{
public:
    Overview(HotKeyRegistry& registry, QWidget* parent);

    void reject() override;

private:
    void addButtons();
    void followList();

    HotKeyRegistry& m_registry;
    const QList<HotKey> m_before; ///< For Cancel.
    HotKeyList* m_list;
    QLabel* m_note;
    QPushButton* m_change = nullptr;
    QPushButton* m_reset = nullptr;
};

Overview::Overview(HotKeyRegistry& registry, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
    , m_registry(registry)
    , m_before(registry.shownHotKeys())
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(GuiBase::tr("Keyboard - Hotkeys Overview"));
    setMinimumWidth(minimumDialogWidth);
    auto* layout = new QVBoxLayout(this);
    auto* tabs = new QTabWidget(this);
    m_list = new HotKeyList(registry, tabs);
    tabs->addTab(m_list, GuiBase::tr("&Hotkeys"));
    layout->addWidget(tabs);
    m_note = new QLabel(this);
    m_note->setWordWrap(true);
    layout->addWidget(m_note);
    addButtons();
    connect(m_list, &HotKeyList::hotKeyChanged, this, [this] { followList(); });
    connect(m_list, &QTreeWidget::currentItemChanged, this, [this] { followList(); });
    followList();
    m_list->setFocus();
    // As large as the keys need; the toolkit itself would stop at two thirds of the screen.
    const QSize frame(frameWidth, frameWidth);
    resize(sizeHint().boundedTo(screen()->availableGeometry().size() - 2 * frame));
}

void Overview::addButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_change = buttons->addButton(GuiBase::tr("C&hange..."), QDialogButtonBox::ActionRole);
    m_reset = buttons->addButton(GuiBase::tr("&Default"), QDialogButtonBox::ActionRole);
    // Return belongs to the list.
    for (QAbstractButton* button : buttons->buttons())
        static_cast<QPushButton*>(button)->setAutoDefault(false);
    connect(m_change, &QPushButton::clicked, m_list, &HotKeyList::editCurrent);
    connect(m_reset, &QPushButton::clicked, m_list, &HotKeyList::resetCurrent);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}

void Overview::followList()
{
    const HotKey* current = m_registry.find(m_list->currentId());
    m_change->setEnabled(current != nullptr);
    m_reset->setEnabled(current != nullptr && current->stroke != current->registered);
    const int conflicts = m_list->conflictCount();
    m_note->setText(conflicts == 0
                        ? GuiBase::tr("Press Return on a row to give it another key.")
                        : GuiBase::tr("Hot keys that share a key: %1. All of them act when it is "
                                      "pressed; give each one a key of its own.")
                              .arg(conflicts));
}

void Overview::reject()
{
    for (const HotKey& before : m_before) {
        const HotKey* now = m_registry.find(before.id);
        if (now != nullptr && now->stroke != before.stroke)
            m_registry.assign(before.id, before.stroke);
    }
    QDialog::reject();
}

} // namespace

QWidget* HotKeyOverview::createList(HotKeyRegistry& registry, QWidget* parent)
{
    return new HotKeyList(registry, parent);
}

void HotKeyOverview::exec(HotKeyRegistry& registry, QWidget* parent)
{
    if (registry.isEmpty()) {
        ModalDialogs::show(parent, {QMessageBox::Information, GuiBase::tr("HotKeys"),
                                    GuiBase::tr("No Hotkeys applied")});
        return;
    }
    // On the heap, and deleted by itself: the parent may die while the dialog is open.
    (new Overview(registry, parent))->exec();
}
