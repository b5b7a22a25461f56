// SPDX-License-Identifier: MIT
#include "livedialog.h"

#include <guibase/files/ilrustringlistdisplayer.h>
#include <guibase/files/lrustringlistcontroller.h>
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

class LiveDialog::Displayer : public ILruStringListDisplayer
{
public:
    explicit Displayer(QComboBox* box)
        : m_box(box)
    {}
    void RemoveItem(int index) override { m_box->removeItem(index); }
    void InsertItem(int index, const QString& text) override { m_box->insertItem(index, text); }

private:
    QComboBox* m_box;
};

LiveDialog::LiveDialog(QWidget* parent)
    : QDialog(parent)
    , m_command(new QComboBox(this))
    , m_cfg(CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("Bandmonitor")))
    , m_displayer(std::make_unique<Displayer>(m_command))
    , m_commands(std::make_unique<LruStringListController>(
          m_displayer.get(), maximumCount, m_cfg.get(), QStringLiteral("LiveCommand")))
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
    m_commands->Init();
    m_commands->SlotDisplayList();
    m_command->setCurrentIndex(m_command->count() > 0 ? 0 : -1);
    m_command->lineEdit()->selectAll();
    run->setEnabled(!m_command->currentText().trimmed().isEmpty());
}

LiveDialog::~LiveDialog() = default;

QString LiveDialog::ask()
{
    if (exec() != Accepted)
        return {};
    return m_commands->Select(m_command->currentText().trimmed());
}

} // namespace bandmonitor
