// SPDX-License-Identifier: MIT
#include "panes/bearingspane.h"

#include "panes/bearingrose.h"
#include "panes/headingspinbox.h"
#include "panes/paneactions.h"

#include <QAction>
#include <QHBoxLayout>
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

BearingsPane::BearingsPane(const Bearings* bearings, QWidget* parent)
    : QWidget(parent)
    , m_rose(new BearingRose(bearings, this))
    , m_heading(new HeadingSpinBox(this))
    , m_headingUp(addPaneAction(this, tr("Heading &up"), Qt::CTRL | Qt::Key_U,
                                tr("Turns the rose so that the heading is up instead of north")))
    , m_readOut(makeLabel(this, QStringLiteral("bearingReadOut")))
{
    setObjectName(QStringLiteral("bearingsPane"));
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
    simulated->setText(tr("simulated"));
    simulated->setToolTip(
        tr("The recording holds no bearings. Those that are shown follow from the "
           "frequencies and levels of the signals."));

    QHBoxLayout* row = makeButtonRow(this, {m_headingUp});
    row->setContentsMargins(4, 2, 4, 0);
    row->insertWidget(0, headingLabel);
    row->insertWidget(1, m_heading);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(row);
    column->addWidget(m_rose, 1);
    column->addWidget(m_readOut);
    column->addWidget(simulated);

    const auto showSelection = [this] { m_readOut->setText(m_rose->selectedText()); };
    connect(m_rose, &BearingRose::selectionShown, this, showSelection);
    connect(m_rose, &BearingRose::signalChosen, this, &BearingsPane::signalChosen);
    connect(m_heading, &HeadingSpinBox::valueChanged, m_rose, &BearingRose::setHeading);
    connect(m_headingUp, &QAction::toggled, m_rose, &BearingRose::setHeadingUp);
    showSelection();
}

BearingsPane::~BearingsPane() = default;

void BearingsPane::refreshTexts()
{
    m_rose->refreshTexts();
}

} // namespace bandmonitor
