// SPDX-License-Identifier: MIT
#include "qheaderviewcolumnhandler.h"

#include "headerstate_p.h"

#include <guibase/records/geometryrecord.h>
#include <guibase/records/recordstore.h>

#include <trovappstartup/cfgcenter.h>

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace {

constexpr qsizetype maximumTextLength = 1 << 20;

/// The bytes of a stored text; empty for a text that is no base64.
QByteArray fromStoredText(const QString& text)
{
    if (text.size() > maximumTextLength)
        return {};
    const auto decoded =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? *decoded : QByteArray();
}

} // namespace

namespace guiHelper {

QHeaderViewColumnHandler::QHeaderViewColumnHandler(const QString& name, QHeaderView* header)
    : QObject(header)
    , m_header(header)
{
    setObjectName(name);
    if (header == nullptr)
        return;
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            &QHeaderViewColumnHandler::sl_contextMenu);
    connect(header, &QHeaderView::sectionCountChanged, this,
            &QHeaderViewColumnHandler::restoreAwaited);
    header->installEventFilter(this);
    watchView();
}

QHeaderViewColumnHandler::~QHeaderViewColumnHandler() = default;

QString QHeaderViewColumnHandler::key(const char* suffix) const
{
    return QStringLiteral("QHeaderViewColumnSettings_") + objectName() + QLatin1String(suffix);
}

void QHeaderViewColumnHandler::saveColumnStatus()
{
    if (!m_header)
        return;
    ICfg* const cfg = CfgCenter::GetAppCfg(SettingsView);
    cfg->SetString(key("_GEOM"), QString::fromLatin1(m_header->saveGeometry().toBase64()));
    cfg->SetString(key("_STATE"), QString::fromLatin1(m_header->saveState().toBase64()));
    cfg->Store();
}

void QHeaderViewColumnHandler::restoreColumnStatus()
{
    if (!m_header)
        return;
    const ICfg* const cfg = CfgCenter::GetAppCfg(SettingsView);
    const QByteArray geometry = fromStoredText(cfg->GetString(key("_GEOM")));
    // A view places its headers itself.
    if (m_header->isWindow() && GeometryRecord::fromBytes(geometry))
        m_header->restoreGeometry(geometry);
    const QString stateText = cfg->GetString(key("_STATE"));
    if (!stateText.isEmpty())
        restoreState(stateText, 0);
}

void QHeaderViewColumnHandler::restoreState(const QString& text, int firstSection)
{
    m_awaitedState.clear();
    const QByteArray bytes = fromStoredText(text);
    const auto state = HeaderState::fromBytes(bytes, m_header->orientation());
    if (!state) {
        RecordStore::keepAside(*CfgCenter::GetAppCfg(SettingsView),
                               {{RecordStore::asideName(key("_STATE")), text}}, key("_STATE"),
                               QStringLiteral("it is no state of such a header"));
        return;
    }
    const bool isWhole = state->sections.size() <= m_header->count();
    if (isWhole && firstSection == 0 && state->sortSection <= m_header->count())
        m_header->restoreState(bytes);
    else
        state->applyTo(*m_header, firstSection);
    // Without any section there would be no header to bring the others back with.
    if (m_header->count() > 0 && m_header->hiddenSectionCount() == m_header->count())
        m_header->showSection(m_header->logicalIndex(0));
    if (!isWhole)
        m_awaitedState = text;
}

void QHeaderViewColumnHandler::restoreAwaited(int oldCount, int newCount)
{
    if (newCount > oldCount && !m_awaitedState.isEmpty())
        restoreState(QString(m_awaitedState), oldCount);
}

void QHeaderViewColumnHandler::watchView()
{
    if (m_view)
        m_view->removeEventFilter(this);
    m_view = m_header->parentWidget();
    if (m_view)
        m_view->installEventFilter(this);
}

bool QHeaderViewColumnHandler::eventFilter(QObject* object, QEvent* event)
{
    // Other events come while the header is being destroyed, too, and is none any more.
    const bool isParentChange = event->type() == QEvent::ParentChange;
    if ((!isParentChange && event->type() != QEvent::KeyPress) || !m_header)
        return false;
    if (isParentChange) {
        if (object == m_header)
            watchView();
        return false;
    }
    const auto* const keyEvent = static_cast<QKeyEvent*>(event);
    const int menuKey = m_header->orientation() == Qt::Horizontal ? Qt::Key_H : Qt::Key_V;
    if (keyEvent->key() != menuKey ||
        keyEvent->modifiers() != (Qt::ControlModifier | Qt::AltModifier))
        return false;
    sl_contextMenu(QPoint(0, 0));
    return true;
}

void QHeaderViewColumnHandler::sl_contextMenu(QPoint position)
{
    if (!m_header || m_header->model() == nullptr)
        return;
    QMenu menu;
    const int visible = m_header->count() - m_header->hiddenSectionCount();
    for (int section = 0; section < m_header->count(); ++section) {
        const QVariant title = m_header->model()->headerData(section, m_header->orientation());
        QAction* const action = menu.addAction(title.toString());
        action->setCheckable(true);
        action->setChecked(!m_header->isSectionHidden(section));
        action->setEnabled(visible != 1 || m_header->isSectionHidden(section));
    }
    QAction* showAll = nullptr;
    if (m_header->hiddenSectionCount() > 0) {
        menu.addSeparator();
        showAll = menu.addAction(tr("Show All"));
    }
    const QPointer<QHeaderViewColumnHandler> self(this);
    QAction* const chosen = menu.exec(m_header->mapToGlobal(position));
    if (chosen == nullptr || !self || !m_header)
        return;
    if (chosen == showAll) {
        for (int section = 0; section < m_header->count(); ++section)
            m_header->showSection(section);
        return;
    }
    const int section = static_cast<int>(menu.actions().indexOf(chosen));
    m_header->setSectionHidden(section, !m_header->isSectionHidden(section));
}

} // namespace guiHelper
