// SPDX-License-Identifier: MIT
#include "colorsctrl.h"

#include "colorpreview_p.h"
#include "colorrows_p.h"
#include "colortoolbuttons_p.h"
#include "usercolorsmenu_p.h"

#include <guibase/colors/colorcontrast.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorsetbuiltin.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

#include <optional>

struct ColorsCtrl::Private
{
    explicit Private(ColorsCtrl& editor);

    void addToolBar(QVBoxLayout& layout);
    void addTools(QVBoxLayout& layout);
    QToolButton* makeUndoButton(QAction* action, const QKeySequence& key,
                                QStyle::StandardPixmap icon);
    void setName();
    void populate();
    void push(IColorBase::ECOLOR role, int formerId, int id);
    void followChange();
    void showContrast();

    ColorsCtrl& q;
    QLabel* name = nullptr;
    QLineEdit* filter = nullptr;
    ColorRows* rows = nullptr;
    QLabel* contrast = nullptr;
    ColorPreview* preview = nullptr;
    QUndoStack undo;
};

namespace {

/// Another colour in a row that is not accepted yet.
class ChooseColor : public QUndoCommand
{
public:
    ChooseColor(ColorRows& rows, IColorBase::ECOLOR role, int formerId, int id)
        : m_rows(rows)
        , m_role(role)
        , m_formerId(formerId)
        , m_id(id)
    {}

    void undo() override { m_rows.setColorId(m_role, m_formerId); }
    void redo() override { m_rows.setColorId(m_role, m_id); }

private:
    ColorRows& m_rows;
    IColorBase::ECOLOR m_role;
    int m_formerId;
    int m_id;
};

/// Elides its text in the middle instead of widening the window: the names of sets are paths.
class NameLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
        style()->drawItemText(&painter, rect(),
                              int(QStyle::visualAlignment(layoutDirection(), alignment())),
                              palette(), isEnabled(), shown, foregroundRole());
    }
};

} // namespace

ColorsCtrl::Private::Private(ColorsCtrl& editor)
    : q(editor)
{
    auto* layout = new QVBoxLayout(&q);
    addToolBar(*layout);
    rows = new ColorRows(&q);
    addTools(*layout);
    layout->addWidget(rows);
    contrast = new QLabel(&q);
    contrast->setWordWrap(true);
    layout->addWidget(contrast);
    preview = new ColorPreview([this](IColorBase::ECOLOR slot) { return rows->colorOf(slot); }, &q);
    layout->addWidget(preview);
    connect(rows, &ColorRows::colorChosen, &q, [this](int role, int formerId, int id) {
        push(static_cast<IColorBase::ECOLOR>(role), formerId, id);
    });
    connect(rows, &QTreeWidget::currentItemChanged, &q, [this] { showContrast(); });
    connect(&undo, &QUndoStack::indexChanged, &q, [this] { followChange(); });
    connect(&undo, &QUndoStack::cleanChanged, &q,
            [this](bool clean) { Q_EMIT q.changesPending(!clean); });
    q.setFocusProxy(rows);
    populate();
    setName();
}

void ColorsCtrl::Private::addToolBar(QVBoxLayout& layout)
{
    auto* bar = new QWidget(&q);
    bar->setObjectName(QStringLiteral("Toolbar"));
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    name = new NameLabel(bar);
    row->addWidget(name, 1);
    QToolButton* open = ColorToolButtons::makeOpen(tr("File Open"), bar);
    QToolButton* save = ColorToolButtons::makeSave(tr("File Save As"), bar);
    row->addWidget(open);
    row->addWidget(save);
    connect(open, &QToolButton::clicked, &q, &ColorsCtrl::slotLoad);
    connect(save, &QToolButton::clicked, &q, &ColorsCtrl::slotSave);
    layout.addWidget(bar);
}

void ColorsCtrl::Private::addTools(QVBoxLayout& layout)
{
    auto* row = new QHBoxLayout;
    filter = new QLineEdit(&q);
    filter->setObjectName(QStringLiteral("Filter"));
    filter->setPlaceholderText(tr("Filter by element or colour"));
    filter->setClearButtonEnabled(true);
    connect(filter, &QLineEdit::textChanged, rows, &ColorRows::filter);
    row->addWidget(filter);
    row->addWidget(makeUndoButton(undo.createUndoAction(&q, tr("Undo")), QKeySequence::Undo,
                                  QStyle::SP_ArrowBack));
    row->addWidget(makeUndoButton(undo.createRedoAction(&q, tr("Redo")), QKeySequence::Redo,
                                  QStyle::SP_ArrowForward));
    // Other than a tool button it has room for its arrow.
    auto* userColors = new QPushButton(tr("&User Colours"), &q);
    userColors->setToolTip(tr("Redefine a user colour, at once and everywhere"));
    userColors->setAutoDefault(false);
    userColors->setMenu(new UserColorsMenu(userColors));
    row->addWidget(userColors);
    layout.addLayout(row);
    QObject::connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, &q, [this] {
        rows->refresh();
        setName();
        followChange();
    });
}

QToolButton* ColorsCtrl::Private::makeUndoButton(QAction* action, const QKeySequence& key,
                                                 QStyle::StandardPixmap icon)
{
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setIcon(q.style()->standardIcon(icon, nullptr, &q));
    q.addAction(action);
    auto* button = new QToolButton(&q);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void ColorsCtrl::Private::setName()
{
    const ColorSet& colors = ColorSet::Instance();
    name->setText(ColorSetBuiltIn::shownName(colors.GetName(), colors.GetDirty()));
    name->setToolTip(ColorSetBuiltIn::shownName(colors.GetName(), false));
}

void ColorsCtrl::Private::populate()
{
    undo.clear();
    rows->populate(ColorSet::Instance().GetShowInDialog());
    rows->filter(filter->text());
    followChange();
}

void ColorsCtrl::Private::push(IColorBase::ECOLOR role, int formerId, int id)
{
    undo.push(new ChooseColor(*rows, role, formerId, id));
}

void ColorsCtrl::Private::followChange()
{
    rows->markContrasts();
    showContrast();
    QPalette palette;
    palette.setColor(QPalette::PlaceholderText, ColorContrast::placeholder(q.palette()));
    filter->setPalette(palette);
    preview->update();
}

void ColorsCtrl::Private::showContrast()
{
    const std::optional<double> ratio = rows->currentContrast();
    if (!ratio)
        contrast->setText(tr("Press Return on a row to choose another colour."));
    else if (*ratio < ColorContrast::lowest)
        contrast->setText(tr("Contrast with the background: %L1 : 1, hard to see below %L2 : 1.")
                              .arg(*ratio, 0, 'f', 1)
                              .arg(ColorContrast::lowest, 0, 'f', 0));
    else
        contrast->setText(tr("Contrast with the background: %L1 : 1.").arg(*ratio, 0, 'f', 1));
}

ColorsCtrl::ColorsCtrl(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(*this))
{
    setObjectName(QStringLiteral("ColorsControl"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ColorSet::Instance().Backup();
}

ColorsCtrl::~ColorsCtrl() = default;

void ColorsCtrl::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        d->followChange();
}

void ColorsCtrl::slotLoad()
{
    const QPointer<ColorsCtrl> guard(this); // May die while the dialog is open.
    ColorSet::Instance().Load(this, QString());
    if (!guard)
        return;
    d->setName();
    d->populate();
}

void ColorsCtrl::slotSave()
{
    const QPointer<ColorsCtrl> guard(this);
    // No file can have this name, so that the user is always asked.
    ColorSet::Instance().Save(this, QStringLiteral("**"));
    if (guard)
        d->setName();
}

void ColorsCtrl::slotAcceptChanges()
{
    d->rows->accept();
    ColorSet& colors = ColorSet::Instance();
    if (!colors.GetDirty())
        return;
    const QPointer<ColorsCtrl> guard(this);
    colors.Save(this, QString());
    colors.Backup();
    if (guard) {
        d->setName();
        d->undo.setClean();
    }
    GuiBase::Instance().emit_signalColorsChanged();
}

void ColorsCtrl::slotDiscardChanges()
{
    ColorSet::Instance().Restore();
    d->setName();
    d->populate();
}
