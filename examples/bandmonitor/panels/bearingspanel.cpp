// SPDX-License-Identifier: MIT
#include "panels/bearingspanel.h"

#include "model/bearings.h"
#include "panels/headingspinbox.h"
#include "panels/panelactions.h"
#include "panels/wrappingrow.h"
#include "settings/boundform.h"
#include "settings/sessionvalues.h"

#include <radiopanes/bearings/bearingrose.h>

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {

QLabel* makeLabel(QWidget* parent, const QString& name)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter);
    return label;
}

} // namespace

BearingsPanel::BearingsPanel(const Bearings* bearings, const SessionValues& values, QWidget* parent)
    : Panel(parent)
    , m_rose(new BearingRose(this))
    , m_heading(new HeadingSpinBox(this))
    , m_headingUp(addPanelAction(this, tr("Heading &up"), Qt::CTRL | Qt::Key_U,
                                 tr("Turns the rose so that the heading is up instead of north")))
    , m_readOut(makeLabel(this, QStringLiteral("bearingReadOut")))
{
    setAccessibleName(tr("Bearings"));
    setFocusProxy(m_rose);
    m_heading->setObjectName(QStringLiteral("heading"));
    m_heading->setAccessibleName(tr("Heading"));
    m_heading->setToolTip(tr("The direction of the bow, clockwise from north"));
    auto* headingLabel = new QLabel(tr("Hea&ding:"), this);
    headingLabel->setBuddy(m_heading);
    m_headingUp->setObjectName(QStringLiteral("headingUp"));
    m_headingUp->setCheckable(true);
    QLabel* simulated = makeLabel(this, QStringLiteral("simulatedNote"));
    simulated->setText(tr("The bearings are simulated."));
    simulated->setToolTip(
        tr("Recordings hold no bearings. These are made up from the frequencies and levels "
           "of the signals."));

    WrappingRow* row = makeButtonRow(this, {m_headingUp}, {headingLabel, m_heading});
    row->setContentsMargins(4, 2, 4, 0);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(row);
    column->addWidget(m_rose, 1);
    column->addWidget(m_readOut);
    column->addWidget(simulated);

    const auto showBearings = [this, bearings] { m_rose->setBearings(bearings->all()); };
    connect(bearings, &Bearings::changed, m_rose, showBearings);
    connect(bearings, &QObject::destroyed, m_rose, [this] { m_rose->setBearings({}); });
    const auto showSelection = [this] { m_readOut->setText(m_rose->selectedText()); };
    connect(m_rose, &BearingRose::selectionShown, this, showSelection);
    connect(m_rose, &BearingRose::signalChosen, this, &Panel::frequencyWanted);
    connect(m_heading, &HeadingSpinBox::valueChanged, m_rose, &BearingRose::setHeading);
    connect(m_headingUp, &QAction::toggled, m_rose, &BearingRose::setHeadingUp);
    bindForm(*this, values.bearingsPath());
    showBearings();
    showSelection();
}

BearingsPanel::~BearingsPanel() = default;

void BearingsPanel::refreshTexts()
{
    m_rose->refreshTexts();
}

} // namespace bandmonitor
