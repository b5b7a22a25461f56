// SPDX-License-Identifier: MIT
#include "qheaderviewcolumnhandler.h"

#include "columnmenu.h"
#include "headerarrangement.h"

#include <guibase/records/geometryrecord.h>
#include <guibase/records/headerstate.h>
#include <guibase/records/recordstore.h>

#include <trovappstartup/cfgcenter.h>

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace guiHelper {

namespace {

const QString geometryDamage = QStringLiteral("the header geometry is damaged");
const QString stateDamage = QStringLiteral("the header state is damaged");

std::optional<QByteArray> geometryOf(const QString& text)
{
    auto bytes =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return bytes && GeometryRecord::fromBytes(*bytes) ? std::optional(*std::move(bytes))
                                                      : std::nullopt;
}

} // namespace

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

std::optional<HeaderState> QHeaderViewColumnHandler::stateOf(const QString& text) const
{
    return HeaderState::fromText(text, m_header->orientation());
}

void QHeaderViewColumnHandler::saveColumnStatus()
{
    if (!m_header)
        return;
    const RecordStore store(SettingsView);
    store.replace(key("_GEOM"), QString::fromLatin1(m_header->saveGeometry().toBase64()),
                  geometryDamage, geometryOf);
    store.replace(key("_STATE"), QString::fromLatin1(m_header->saveState().toBase64()), stateDamage,
                  [this](const QString& text) { return stateOf(text); });
    CfgCenter::GetAppCfg(SettingsView)->Store();
}

void QHeaderViewColumnHandler::restoreColumnStatus()
{
    if (!m_header)
        return;
    const RecordStore store(SettingsView);
    const auto geometry = store.read(key("_GEOM"), geometryDamage, geometryOf);
    // A view places its headers itself.
    if (geometry && m_header->isWindow())
        m_header->restoreGeometry(*geometry);
    const auto state = store.read(key("_STATE"), stateDamage,
                                  [this](const QString& text) { return stateOf(text); });
    if (state)
        restoreState(*state, 0);
}

void QHeaderViewColumnHandler::restoreState(const HeaderState& state, int firstSection)
{
    m_awaited.reset();
    QHeaderView& header = *m_header;
    const auto count = std::min<qsizetype>(header.count(), state.sections.size());
    const bool isWhole = count == state.sections.size();
    if (isWhole && firstSection == 0 && state.sortSection <= header.count()) {
        header.restoreState(state.bytes);
        HeaderArrangement::apply(header, {}, 0);
    } else {
        HeaderArrangement::apply(header, state.sections, firstSection);
        if (state.sortSection >= firstSection && state.sortSection < count)
            header.setSortIndicator(state.sortSection, state.sortOrder);
    }
    if (!isWhole)
        m_awaited = std::make_unique<HeaderState>(state);
}

void QHeaderViewColumnHandler::restoreAwaited(int oldCount, int newCount)
{
    if (newCount > oldCount && m_awaited)
        restoreState(HeaderState(*m_awaited), oldCount);
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
    // Other events also come while the header is being destroyed, and is no header any more.
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
    // Belongs to the header, which may die while the menu is open.
    const QPointer<ColumnMenu> menu = new ColumnMenu(m_header);
    const QPointer<QHeaderViewColumnHandler> self(this);
    const int section =
        menu->choose(*m_header, m_header->mapToGlobal(position), ColumnMenu::ShowAll::Offered);
    delete menu;
    if (!self || !m_header)
        return;
    if (section == ColumnMenu::allSections) {
        for (int each = 0; each < m_header->count(); ++each)
            m_header->showSection(each);
    } else if (section >= 0) {
        m_header->setSectionHidden(section, !m_header->isSectionHidden(section));
    }
}

} // namespace guiHelper
