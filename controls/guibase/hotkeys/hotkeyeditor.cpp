// SPDX-License-Identifier: MIT
#include "hotkeyeditor.h"

#include "keynames.h"

#include <guibase/colors/colorcontrast.h>

#include <QCheckBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <optional>
#include <utility>

namespace {

constexpr int offeredModifiers =
    static_cast<int>(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
const QColor invalidBackground(0xff, 0xc0, 0xcb); // Pink, with black text on it.

QLineEdit* makeNote(QWidget* parent)
{
    auto* note = new QLineEdit(parent);
    note->setReadOnly(true);
    note->setFrame(false);
    QPalette palette = note->palette();
    palette.setColor(QPalette::Base, Qt::transparent); // unlike a field to be filled
    note->setPalette(palette);
    note->setFocusPolicy(Qt::ClickFocus);
    return note;
}

/// Keys that move through the dialog, and that edit the text of the key.
bool isForTheDialog(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
        return (event.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    default:
        return false;
    }
}

bool typesText(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::NoModifier;
}

} // namespace

struct HotKeyEditor::Private
{
    explicit Private(HotKeyEditor& editor);

    void addFields();
    void addButtons();
    std::optional<Qt::Key> typedKey() const;
    int shownModifiers() const;
    void show(Qt::Key key, int modifiers);
    /// Marks the key or warns of it.
    void judge();
    QString warningFor(Qt::Key key) const;

    HotKeyEditor& q;
    QLineEdit* key = nullptr;
    std::array<std::pair<QCheckBox*, Qt::KeyboardModifier>, 3> modifiers{};
    QLineEdit* scope = nullptr;
    QLineEdit* comment = nullptr;
    QLabel* message = nullptr;
    QPushButton* ok = nullptr;
    QPushButton* defaultButton = nullptr;
    int otherModifiers = 0; ///< Such as Meta, which have no check box.
    Qt::Key defaultKey = Qt::Key(0);
    int defaultModifiers = 0;
    HotKeyEditor::Warning warning;
};

HotKeyEditor::Private::Private(HotKeyEditor& editor)
    : q(editor)
{
    q.setObjectName(QStringLiteral("HotKeyEditor"));
    q.setWindowTitle(tr("Change Hot Key"));
    addFields();
    addButtons();
    judge();
}

void HotKeyEditor::Private::addFields()
{
    auto* form = new QFormLayout(&q);
    key = new QLineEdit(&q);
    key->setObjectName(QStringLiteral("Key"));
    key->setPlaceholderText(tr("No key: press or type one"));
    auto* completer = new QCompleter(KeyNames::displayNames(), key);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    key->setCompleter(completer);
    connect(key, &QLineEdit::textChanged, &q, [this] { judge(); });
    form->addRow(tr("&Key:"), key);

    auto* row = new QHBoxLayout;
    modifiers = {std::pair{new QCheckBox(tr("C&trl"), &q), Qt::ControlModifier},
                 std::pair{new QCheckBox(tr("&Alt"), &q), Qt::AltModifier},
                 std::pair{new QCheckBox(tr("&Shift"), &q), Qt::ShiftModifier}};
    for (const auto& [box, modifier] : modifiers) {
        row->addWidget(box);
        connect(box, &QCheckBox::toggled, &q, [this] { judge(); });
    }
    row->addStretch();
    form->addRow(tr("With:"), row);
    scope = makeNote(&q);
    comment = makeNote(&q);
    form->addRow(tr("Scope:"), scope);
    form->addRow(tr("Comment:"), comment);
    message = new QLabel(&q);
    message->setWordWrap(true);
    message->setMinimumHeight(2 * message->fontMetrics().lineSpacing());
    form->addRow(message);
}

void HotKeyEditor::Private::addButtons()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &q);
    ok = buttons->button(QDialogButtonBox::Ok);
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    const QPushButton* clear = buttons->addButton(tr("C&lear"), QDialogButtonBox::ResetRole);
    defaultButton = buttons->addButton(tr("&Default"), QDialogButtonBox::ResetRole);
    defaultButton->hide();
    connect(buttons, &QDialogButtonBox::accepted, &q, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &q, &QDialog::reject);
    connect(clear, &QPushButton::clicked, &q, [this] { show(Qt::Key(0), 0); });
    connect(defaultButton, &QPushButton::clicked, &q,
            [this] { show(defaultKey, defaultModifiers); });
    static_cast<QFormLayout*>(q.layout())->addRow(buttons);
}

// Nothing for a text that is no key.
std::optional<Qt::Key> HotKeyEditor::Private::typedKey() const
{
    const QString text = key->text().trimmed();
    if (text.isEmpty())
        return Qt::Key(0);
    const std::optional<Qt::Key> named = KeyNames::keyOf(text);
    return named && !KeyNames::isModifier(*named) ? named : std::nullopt;
}

int HotKeyEditor::Private::shownModifiers() const
{
    int shown = otherModifiers;
    for (const auto& [box, modifier] : modifiers) {
        if (box->isChecked())
            shown |= static_cast<int>(modifier);
    }
    return shown;
}

void HotKeyEditor::Private::show(Qt::Key newKey, int newModifiers)
{
    otherModifiers = newModifiers & ~offeredModifiers;
    for (const auto& [box, modifier] : modifiers)
        box->setChecked((newModifiers & static_cast<int>(modifier)) != 0);
    key->setText(newKey == Qt::Key(0) ? QString() : KeyNames::displayName(newKey));
    key->selectAll();
    judge();
}

QString HotKeyEditor::Private::warningFor(Qt::Key typed) const
{
    const int shown = shownModifiers();
    if (typed == Qt::Key(0))
        return {};
    if (warning) {
        if (const QString text = warning(typed, shown); !text.isEmpty())
            return text;
    }
    const bool isTyped = typed >= Qt::Key_Space && typed <= Qt::Key_ydiaeresis;
    const int nonText = static_cast<int>(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return isTyped && (shown & nonText) == 0
               ? tr("This key is also for typing: it would fire while somebody types.")
               : QString();
}

void HotKeyEditor::Private::judge()
{
    const std::optional<Qt::Key> typed = typedKey();
    QPalette palette = q.palette();
    palette.setColor(QPalette::PlaceholderText, ColorContrast::placeholder(palette));
    if (!typed) {
        palette.setColor(QPalette::Base, invalidBackground);
        palette.setColor(QPalette::Text, Qt::black);
    }
    key->setPalette(palette);
    ok->setEnabled(typed.has_value());
    message->setText(typed ? warningFor(*typed)
                           : tr("\"%1\" is no key. Type a name such as F7 or Insert, or press "
                                "the key.")
                                 .arg(key->text().trimmed()));
}

HotKeyEditor::HotKeyEditor(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint)
    , d(std::make_unique<Private>(*this))
{
    d->key->installEventFilter(this);
}

HotKeyEditor::~HotKeyEditor() = default;

void HotKeyEditor::SetKey(Qt::Key key, int modifiers)
{
    d->show(key, modifiers);
}

Qt::Key HotKeyEditor::GetKey() const
{
    return d->typedKey().value_or(Qt::Key(0));
}

int HotKeyEditor::GetModifiers() const
{
    return d->shownModifiers();
}

void HotKeyEditor::SetTexts(const QString& scope, const QString& comment)
{
    d->scope->setText(scope);
    d->comment->setText(comment);
    d->comment->setCursorPosition(0);
}

void HotKeyEditor::SetDefaultKey(Qt::Key key, int modifiers)
{
    d->defaultKey = key;
    d->defaultModifiers = modifiers;
    d->defaultButton->show();
}

void HotKeyEditor::SetWarning(Warning warning)
{
    d->warning = std::move(warning);
    d->judge();
}

bool HotKeyEditor::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched != d->key || !isKey)
        return QDialog::eventFilter(watched, event);
    const auto& keyEvent = *static_cast<QKeyEvent*>(event);
    const auto key = Qt::Key(keyEvent.key());
    if (isForTheDialog(keyEvent) || typesText(keyEvent) || KeyNames::isModifier(key) ||
        !KeyNames::hasName(key)) {
        return QDialog::eventFilter(watched, event);
    }
    // The override keeps shortcuts of the application from taking the key.
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    else
        d->show(key, static_cast<int>((keyEvent.modifiers() & ~Qt::KeypadModifier).toInt()));
    return true;
}
