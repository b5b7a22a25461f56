// SPDX-License-Identifier: MIT
#include "colorsmenu.h"

#include "colorsdialog.h"
#include "settings/keys.h"
#include "settings/settings.h"

#include <guibase/colors/colorset.h>
#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <QComboBox>

namespace bandmonitor {

namespace {

// The groups of the editor, beside those that it shows of itself, whose colours the panes use.
constexpr quint32 bearingGroup = 0x20;
constexpr quint32 jobGroup = 0x40;
constexpr quint32 referenceLineGroup = 0x100;

} // namespace

ColorsMenu::ColorsMenu(QWidget* parent)
    : QMenu(parent)
    , m_sets(new QMenu(tr("Colour &set"), this))
{
    ColorSet::Instance().AddShowInDialog(bearingGroup | jobGroup | referenceLineGroup);
    Keys::addEntry(*this, tr("&Edit colours…"), Qt::CTRL | Qt::Key_E, [this] { edit(); });
    m_sets->setObjectName(QStringLiteral("colorSets"));
    addMenu(m_sets);
    connect(m_sets, &QMenu::aboutToShow, this, &ColorsMenu::listSets);
    addSeparator();
    Keys::addEntry(*this, tr("&Load…"), Qt::CTRL | Qt::Key_L, [this] { load(); });
    Keys::addEntry(*this, tr("Save &as…"), Qt::CTRL | Qt::SHIFT | Qt::Key_L, [this] { save(); });
    addSeparator();
    Keys::addEntry(*this, tr("&Factory colours"), Qt::CTRL | Qt::SHIFT | Qt::Key_F,
                   [this] { restoreFactory(); });
}

ColorsMenu::~ColorsMenu() = default;

void ColorsMenu::listSets()
{
    QComboBox known;
    ColorSet::Instance().UpdateComboBox(&known);
    m_sets->clear();
    for (int index = 0; index < known.count(); ++index) {
        QAction* action =
            m_sets->addAction(known.itemText(index).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(index == known.currentIndex());
        connect(action, &QAction::triggered, this, [index] { ColorSet::Instance().Load(index); });
    }
}

void ColorsMenu::edit()
{
    ColorsDialog::edit(parentWidget());
}

void ColorsMenu::load()
{
    const QString path = ModalDialogs::askForFile(
        parentWidget(), {QFileDialog::AcceptOpen, tr("Load colours"), Settings::lastFolder(),
                         tr("Colour sets (*.cst);;All files (*)")});
    if (!path.isEmpty())
        ColorSet::Instance().Load(parentWidget(), path);
}

void ColorsMenu::save()
{
    const QString path = ModalDialogs::askForFile(
        parentWidget(), {QFileDialog::AcceptSave, tr("Save colours"), Settings::lastFolder(),
                         tr("Colour sets (*.cst)")});
    if (path.isEmpty())
        return;
    ColorSet::Instance().Save(parentWidget(), path);
    GuiBase::Instance().SavePersistant(); // the name of the set
}

void ColorsMenu::restoreFactory()
{
    ColorSet::Instance().slotRestoreFactoryColors();
    GuiBase::Instance().emit_signalColorsChanged();
}

} // namespace bandmonitor
