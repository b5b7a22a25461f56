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
#include <QPointer>

#include <algorithm>
#include <optional>

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

struct QHeaderViewColumnHandler::Private
{
    QString key(const char* suffix) const;
    std::optional<HeaderState> stateOf(const QString& text) const;
    void restoreState(const HeaderState& state, int firstSection);
    void restoreAwaited(int oldCount, int newCount);
    void watchView();

    QHeaderViewColumnHandler& q;
    QPointer<QHeaderView> header;
    QPointer<QWidget> view;
    /// Restored while sections that it knows were missing.
    std::optional<HeaderState> awaited;
};

QHeaderViewColumnHandler::QHeaderViewColumnHandler(const QString& name, QHeaderView* header)
    : QObject(header)
    , d(new Private{*this, header, {}, {}})
{
    setObjectName(name);
    if (header == nullptr)
        return;
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            &QHeaderViewColumnHandler::sl_contextMenu);
    connect(header, &QHeaderView::sectionCountChanged, this,
            [this](int oldCount, int newCount) { d->restoreAwaited(oldCount, newCount); });
    header->installEventFilter(this);
    d->watchView();
}

QHeaderViewColumnHandler::~QHeaderViewColumnHandler() = default;

QString QHeaderViewColumnHandler::Private::key(const char* suffix) const
{
    return QStringLiteral("QHeaderViewColumnSettings_") + q.objectName() + QLatin1String(suffix);
}

std::optional<HeaderState> QHeaderViewColumnHandler::Private::stateOf(const QString& text) const
{
    return HeaderState::fromText(text, header->orientation());
}

void QHeaderViewColumnHandler::saveColumnStatus()
{
    if (!d->header)
        return;
    const RecordStore store(SettingsView);
    store.replace(d->key("_GEOM"), QString::fromLatin1(d->header->saveGeometry().toBase64()),
                  geometryDamage, geometryOf);
    store.replace(d->key("_STATE"), QString::fromLatin1(d->header->saveState().toBase64()),
                  stateDamage, [this](const QString& text) { return d->stateOf(text); });
    CfgCenter::GetAppCfg(SettingsView)->Store();
}

void QHeaderViewColumnHandler::restoreColumnStatus()
{
    if (!d->header)
        return;
    const RecordStore store(SettingsView);
    const auto geometry = store.read(d->key("_GEOM"), geometryDamage, geometryOf);
    // A view places its headers itself.
    if (geometry && d->header->isWindow())
        d->header->restoreGeometry(*geometry);
    const auto state = store.read(d->key("_STATE"), stateDamage,
                                  [this](const QString& text) { return d->stateOf(text); });
    if (state)
        d->restoreState(*state, 0);
}

void QHeaderViewColumnHandler::Private::restoreState(const HeaderState& state, int firstSection)
{
    awaited.reset();
    const auto count = std::min<qsizetype>(header->count(), state.sections.size());
    const bool isWhole = count == state.sections.size();
    if (isWhole && firstSection == 0 && state.sortSection <= header->count()) {
        header->restoreState(state.bytes);
        HeaderArrangement::apply(*header, {}, 0);
    } else {
        HeaderArrangement::apply(*header, state.sections, firstSection);
        if (state.sortSection >= firstSection && state.sortSection < count)
            header->setSortIndicator(state.sortSection, state.sortOrder);
    }
    if (!isWhole)
        awaited = state;
}

void QHeaderViewColumnHandler::Private::restoreAwaited(int oldCount, int newCount)
{
    if (newCount > oldCount && awaited)
        restoreState(HeaderState(*awaited), oldCount);
}

void QHeaderViewColumnHandler::Private::watchView()
{
    if (view)
        view->removeEventFilter(&q);
    view = header->parentWidget();
    if (view)
        view->installEventFilter(&q);
}

bool QHeaderViewColumnHandler::eventFilter(QObject* object, QEvent* event)
{
    // Other events also come while the header is being destroyed, and is no header any more.
    const bool isParentChange = event->type() == QEvent::ParentChange;
    if ((!isParentChange && event->type() != QEvent::KeyPress) || !d->header)
        return false;
    if (isParentChange) {
        if (object == d->header)
            d->watchView();
        return false;
    }
    const auto* const keyEvent = static_cast<QKeyEvent*>(event);
    const int menuKey = d->header->orientation() == Qt::Horizontal ? Qt::Key_H : Qt::Key_V;
    if (keyEvent->key() != menuKey ||
        keyEvent->modifiers() != (Qt::ControlModifier | Qt::AltModifier))
        return false;
    sl_contextMenu(QPoint(0, 0));
    return true;
}

void QHeaderViewColumnHandler::sl_contextMenu(QPoint position)
{
    if (!d->header || d->header->model() == nullptr)
        return;
    // Belongs to the header, which may die while the menu is open.
    const QPointer<ColumnMenu> menu = new ColumnMenu(d->header);
    const QPointer<QHeaderViewColumnHandler> self(this);
    const int section =
        menu->choose(*d->header, d->header->mapToGlobal(position), ColumnMenu::ShowAll::Offered);
    delete menu;
    if (!self || !d->header)
        return;
    if (section == ColumnMenu::allSections) {
        for (int each = 0; each < d->header->count(); ++each)
            d->header->showSection(each);
    } else if (section >= 0) {
        d->header->setSectionHidden(section, !d->header->isSectionHidden(section));
    }
}

} // namespace guiHelper
