// SPDX-License-Identifier: MIT
#include "maskedlineedit.h"

#include "inputmask_p.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QValidator>

#include <algorithm>
#include <utility>

/// As the validator it brings every text into the shape of the mask before anybody hears of it,
/// wherever it comes from: menus, drops, input methods, the program.
struct MaskedLineEdit::Private : QValidator
{
    explicit Private(MaskedLineEdit& edit)
        : q(edit)
    {}

    State validate(QString& text, int& cursor) const override;

    bool isMasked() const { return mask.fits(q.text()); }
    bool isAllSelected() const { return q.selectedText().size() == q.text().size(); }
    InputMask::State state() const { return {q.text(), q.cursorPosition()}; }
    InputMask::State withoutSelection() const;
    std::optional<InputMask::State> shaped(const QString& text) const;
    void show(const InputMask::State& state);
    bool handleEditing(const QKeyEvent& event);
    void type(const QString& text);
    void paste(const QString& piece);
    void erase(bool forwards);

    MaskedLineEdit& q;
    QString pattern;
    InputMask mask;
    WholeTextTest isWholeText;
    bool isFreeTextAllowed = false;
    bool mayBecomeFree = false;  ///< The user replaces the whole text by keys,
    bool wasAllSelected = false; ///< or by other means.
    mutable QString lastText;
};

QValidator::State MaskedLineEdit::Private::validate(QString& text, int& cursor) const
{
    const bool isFree =
        isFreeTextAllowed && (mayBecomeFree || wasAllSelected || !mask.fits(lastText));
    if (!mask.isEmpty() && !isFree && !mask.fits(text)) {
        if (const auto state = shaped(text)) {
            text = state->text;
            cursor = static_cast<int>(state->cursor);
        }
    }
    lastText = text;
    return Acceptable;
}

/// What becomes of a text that was changed in another way than by the keys; nothing to let it
/// stand.
std::optional<InputMask::State> MaskedLineEdit::Private::shaped(const QString& text) const
{
    const QString former = mask.fits(lastText) ? lastText : mask.emptyText();
    const auto [oldEnd, newEnd] =
        std::mismatch(former.begin(), former.end(), text.begin(), text.end());
    const qsizetype begin = oldEnd - former.begin();
    qsizetype same = 0; // at the end
    while (same < std::min(former.size(), text.size()) - begin &&
           former[former.size() - 1 - same] == text[text.size() - 1 - same])
        ++same;
    const QString piece = text.mid(begin, text.size() - same - begin);
    if (isFreeTextAllowed && isWholeText) {
        for (const QString& whole : {piece.trimmed(), text}) {
            if (isWholeText(whole))
                return InputMask::State{whole, whole.size()};
        }
    }
    if (const auto whole = mask.pasted({mask.emptyText(), 0}, text); whole && same + begin == 0)
        return whole;
    const InputMask::State erased{mask.erased(former, begin, former.size() - same), begin};
    return mask.pasted(erased, piece).value_or(InputMask::State{former, begin});
}

InputMask::State MaskedLineEdit::Private::withoutSelection() const
{
    if (!q.hasSelectedText())
        return state();
    return {mask.erased(q.text(), q.selectionStart(), q.selectionEnd()), q.selectionStart()};
}

void MaskedLineEdit::Private::show(const InputMask::State& state)
{
    if (state.text != q.text()) {
        q.selectAll();
        q.insert(state.text); // can be undone
    }
    q.setCursorPosition(static_cast<int>(state.cursor));
}

void MaskedLineEdit::Private::type(const QString& text)
{
    InputMask::State next = withoutSelection();
    for (const QChar c : text)
        next = mask.typed(next, c);
    show(next);
}

void MaskedLineEdit::Private::paste(const QString& piece)
{
    if (isFreeTextAllowed && (isAllSelected() || (isWholeText && isWholeText(piece)))) {
        const QScopedValueRollback freely(mayBecomeFree, true);
        q.selectAll();
        q.insert(piece.trimmed());
    } else if (const auto filled = mask.pasted(withoutSelection(), piece)) {
        show(*filled);
    }
}

void MaskedLineEdit::Private::erase(bool forwards)
{
    if (q.hasSelectedText()) {
        show(withoutSelection());
        return;
    }
    const QString text = q.text();
    const qsizetype cursor = q.cursorPosition();
    qsizetype slot = forwards ? mask.slotFrom(cursor) : mask.slotBefore(cursor);
    while (forwards && slot < text.size() && text[slot] == InputMask::blank)
        slot = mask.slotFrom(slot + 1);
    if (slot < 0 || slot >= text.size())
        return;
    show({mask.erased(text, slot, slot + 1), forwards ? cursor : slot});
}

/// False for keys that do the same in any line edit.
bool MaskedLineEdit::Private::handleEditing(const QKeyEvent& event)
{
    const QString text = event.text();
    const bool isTyping =
        !text.isEmpty() && text.front().isPrint() &&
        !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (event.matches(QKeySequence::Paste)) {
        paste(QGuiApplication::clipboard()->text());
        return true;
    }
    if (isFreeTextAllowed && isAllSelected())
        return false;
    if (event.matches(QKeySequence::Cut)) {
        q.copy();
        if (q.hasSelectedText())
            erase(true);
    } else if (event.key() == Qt::Key_Backspace || event.matches(QKeySequence::Delete)) {
        erase(event.key() != Qt::Key_Backspace);
    } else if (isTyping) {
        type(text);
    } else {
        return false;
    }
    return true;
}

MaskedLineEdit::MaskedLineEdit(QWidget* parent)
    : QLineEdit(parent)
    , m_d(std::make_unique<Private>(*this))
{
    setValidator(m_d.get());
    connect(this, &QLineEdit::selectionChanged, m_d.get(),
            [this] { m_d->wasAllSelected = hasSelectedText() && m_d->isAllSelected(); });
}

MaskedLineEdit::~MaskedLineEdit()
{
    setValidator(nullptr);
}

void MaskedLineEdit::setMask(const QString& pattern)
{
    if (pattern == m_d->pattern)
        return;
    m_d->pattern = pattern;
    m_d->mask = InputMask(pattern);
    if (m_d->mask.isEmpty() || m_d->isFreeTextAllowed)
        return;
    const auto shaped = m_d->mask.pasted({m_d->mask.emptyText(), 0}, text());
    setText(shaped ? shaped->text : m_d->mask.emptyText());
    setCursorPosition(0);
}

QString MaskedLineEdit::mask() const
{
    return m_d->pattern;
}

void MaskedLineEdit::setFreeTextAllowed(bool allowed)
{
    m_d->isFreeTextAllowed = allowed;
}

bool MaskedLineEdit::isFreeTextAllowed() const
{
    return m_d->isFreeTextAllowed;
}

void MaskedLineEdit::setWholeTextTest(WholeTextTest test)
{
    m_d->isWholeText = std::move(test);
}

bool MaskedLineEdit::isComplete() const
{
    return m_d->isMasked() && !text().contains(InputMask::blank);
}

void MaskedLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (!isReadOnly() && m_d->isMasked() && m_d->handleEditing(*event)) {
        event->accept();
        return;
    }
    const QScopedValueRollback freely(m_d->mayBecomeFree, m_d->isAllSelected());
    QLineEdit::keyPressEvent(event);
}
