// SPDX-License-Identifier: MIT
#include "hotkeyoverview.h"

#include "hotkeyregistry.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <QDialog>
#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QScreen>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int minimumDialogWidth = 600;
constexpr int frameWidth = 40; ///< In pixels, with the title bar.
constexpr int firstModifierColumn = 1;
constexpr int lastModifierColumn = 3;

QStringList rowOf(const HotKey& hotKey)
{
    const auto mark = [&hotKey](Qt::KeyboardModifier modifier) {
        const bool held = (hotKey.modifiers & static_cast<int>(modifier)) != 0;
        return held ? QStringLiteral("X") : QStringLiteral(" ");
    };
    return {HotKeyOverview::keyName(hotKey.key),
            mark(Qt::ShiftModifier),
            mark(Qt::AltModifier),
            mark(Qt::ControlModifier),
            hotKey.scope,
            hotKey.comment};
}

} // namespace

QString HotKeyOverview::keyName(Qt::Key key)
{
    const char* name = QMetaEnum::fromType<Qt::Key>().valueToKey(key);
    if (name == nullptr)
        return GuiBase::tr("unknown");
    return QString::fromLatin1(name).mid(static_cast<int>(qstrlen("Key_")));
}

QWidget* HotKeyOverview::createList(const QList<HotKey>& hotKeys, QWidget* parent)
{
    auto* list = new QTreeWidget(parent);
    list->setObjectName(QStringLiteral("HotKeysCtrl"));
    list->setRootIsDecorated(false);
    list->setHeaderLabels({GuiBase::tr("Key"), GuiBase::tr("Shift"), GuiBase::tr("Alt"),
                           GuiBase::tr("Ctrl"), GuiBase::tr("Scope"), GuiBase::tr("Comment")});
    for (const HotKey& hotKey : hotKeys) {
        auto* row = new QTreeWidgetItem(list, rowOf(hotKey));
        for (int column = firstModifierColumn; column <= lastModifierColumn; ++column)
            row->setTextAlignment(column, Qt::AlignCenter);
    }
    for (int column = 0; column < list->columnCount(); ++column)
        list->resizeColumnToContents(column);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    return list;
}

void HotKeyOverview::exec(const QList<HotKey>& hotKeys, QWidget* parent)
{
    if (hotKeys.isEmpty()) {
        ModalDialogs::show(parent, {QMessageBox::Information, GuiBase::tr("HotKeys"),
                                    GuiBase::tr("No Hotkeys applied")});
        return;
    }
    // On the heap, and deleted by itself: the parent may die while the dialog is open.
    auto* dialog = new QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(GuiBase::tr("Keyboard - Hotkeys Overview"));
    dialog->setMinimumWidth(minimumDialogWidth);
    auto* layout = new QVBoxLayout(dialog);
    auto* tabs = new QTabWidget(dialog);
    tabs->addTab(createList(hotKeys, tabs), GuiBase::tr("&Hotkeys"));
    layout->addWidget(tabs);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    // As large as the keys need; the toolkit itself would stop at two thirds of the screen.
    const QSize frame(frameWidth, frameWidth);
    dialog->resize(
        dialog->sizeHint().boundedTo(dialog->screen()->availableGeometry().size() - 2 * frame));
    dialog->exec();
}
