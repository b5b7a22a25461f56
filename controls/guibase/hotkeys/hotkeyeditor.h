// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QDialog>

#include <functional>
#include <memory>

/// Asks the operator for another key for a hot key: key, Ctrl, Alt, Shift, beside the scope and the
/// comment, which tell what the key is for.
///
/// The key is typed by its name ("F7", "Insert", "a"), or pressed: a key that types no text, or any
/// key with Ctrl or Alt, fills in the fields. A text that is no key is marked and cannot be
/// accepted; an empty one leaves the hot key without a key. Keys that are in use elsewhere, and
/// keys that people type with, are accepted with a warning.
class GUIBASE_EXPORT HotKeyEditor : public QDialog
{
    Q_OBJECT
public:
    /// An empty key.
    explicit HotKeyEditor(QWidget* parent = nullptr);
    ~HotKeyEditor() override;

    /// Qt::Key(0): none. The modifiers are Qt::KeyboardModifiers; others than Ctrl, Alt and Shift
    /// stay as they are.
    void SetKey(Qt::Key key, int modifiers);
    Qt::Key GetKey() const;
    int GetModifiers() const;
    /// What the hot key does, and where.
    void SetTexts(const QString& scope, const QString& comment);
    /// The key that the button "Default" brings back; without one there is no such button.
    void SetDefaultKey(Qt::Key key, int modifiers);
    /// Asked for each key that the operator enters; the answer is the warning to show, or empty.
    using Warning = std::function<QString(Qt::Key key, int modifiers)>;
    void SetWarning(Warning warning);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Private;

    const std::unique_ptr<Private> d;
};
