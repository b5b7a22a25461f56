// SPDX-License-Identifier: MIT
#include "infodialog.h"

#include <guibase/colors/colorset.h>
#include <trovappstartup/cfgcenter.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {

QString coloursName()
{
    const QString& name = ColorSet::Instance().GetName();
    const bool factory = name == QLatin1String(ColorSet::factoryDefaultName);
    // Those that come with the library have names in every language.
    return factory ? InfoDialog::tr("factory")
                   : QDir::toNativeSeparators(ColorSet::tr(name.toUtf8().constData()));
}

} // namespace

InfoDialog::InfoDialog(QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("About bandmonitor"));
    auto* column = new QVBoxLayout(this);
    auto* title = new QLabel(tr("bandmonitor"), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);
    column->addWidget(title);
    column->addWidget(
        new QLabel(tr("Shows and replays recordings of a band, built with GuiBase."), this));
    column->addSpacing(8);

    auto* form = new QFormLayout;
    const auto addRow = [&](const QString& name, const QString& text) {
        auto* label = new QLabel(text, this);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        form->addRow(name, label);
    };
    addRow(tr("Version:"), QCoreApplication::applicationVersion());
    addRow(tr("Qt:"), QString::fromLatin1(qVersion()));
    addRow(tr("Licence:"), QStringLiteral("MIT"));
    addRow(tr("Settings:"), QDir::toNativeSeparators(CfgCenter::GetAppCfgFileName()));
    addRow(tr("Colours:"), coloursName());
    column->addLayout(form);
    column->addSpacing(8);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setFocus();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

InfoDialog::~InfoDialog() = default;

} // namespace bandmonitor
