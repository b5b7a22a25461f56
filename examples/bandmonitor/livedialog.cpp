// SPDX-License-Identifier: MIT
#include "livedialog.h"

#include <guibase/inputs/comboboxes/comboboxdisplayer.h>
#include <trovappstartup/cfgcenter.h>

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {
constexpr int fieldWidth = 480;
} // namespace

LiveDialog::LiveDialog(QWidget* parent)
    : QDialog(parent)
    , m_command(new QComboBox(this))
    , m_cfg(CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("Bandmonitor")))
    , m_commands(std::make_unique<ComboBoxDisplayer>(m_command, QStringLiteral("LiveCommand"),
                                                     maximumCount, m_cfg.get()))
{
    setWindowTitle(tr("Live input"));
    auto* column = new QVBoxLayout(this);
    auto* label = new QLabel(tr("&Command that writes sweeps to its standard output:"), this);
    label->setBuddy(m_command);
    column->addWidget(label);
    m_command->setEditable(true);
    m_command->setInsertPolicy(QComboBox::NoInsert);
    m_command->completer()->setCaseSensitivity(Qt::CaseSensitive);
    m_command->setMinimumWidth(fieldWidth);
    m_command->lineEdit()->setPlaceholderText(QStringLiteral("rtl_power -f 88M:108M:25k -i 1 -"));
    column->addWidget(m_command);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton* run = buttons->button(QDialogButtonBox::Ok);
    run->setText(tr("&Run"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    connect(m_command, &QComboBox::editTextChanged, run,
            [run](const QString& text) { run->setEnabled(!text.trimmed().isEmpty()); });
    connect(m_command, &QComboBox::currentIndexChanged, m_command->lineEdit(),
            &QLineEdit::selectAll);
    // The field takes the key for itself where it completes a kept command.
    connect(
        m_command->lineEdit(), &QLineEdit::returnPressed, run, [run] { run->click(); },
        Qt::QueuedConnection);
    run->setEnabled(false); // until the kept commands are listed
}

LiveDialog::~LiveDialog() = default;

QString LiveDialog::ask()
{
    if (exec() != Accepted)
        return {};
    const QString command = m_command->currentText().trimmed();
    m_commands->Select(command);
    return command;
}

} // namespace bandmonitor
