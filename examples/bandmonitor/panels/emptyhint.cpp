// SPDX-License-Identifier: MIT
#include "panels/emptyhint.h"

#include <QAbstractItemView>
#include <QEvent>

namespace bandmonitor {

namespace {
constexpr int hintMargin = 12;
}

EmptyHint::EmptyHint(const QString& text, QAbstractItemView* view)
    : QLabel(text, view->viewport())
    , m_visibleBand(view)
{
    setObjectName(QStringLiteral("emptyHint"));
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(hintMargin);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    view->viewport()->installEventFilter(this);
    const QAbstractItemModel* model = view->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::follow);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::follow);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::follow);
    follow();
}

EmptyHint::~EmptyHint() = default;

bool EmptyHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        follow();
    return QLabel::eventFilter(watched, event);
}

void EmptyHint::follow()
{
    setGeometry(m_visibleBand->viewport()->rect());
    setVisible(m_visibleBand->model()->rowCount() == 0);
    // Screen readers meet the list, not the label on it.
    m_visibleBand->setAccessibleDescription(isHidden() ? QString() : text());
}

} // namespace bandmonitor
