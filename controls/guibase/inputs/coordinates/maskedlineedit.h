// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QLineEdit>

#include <functional>
#include <memory>

/// A line edit for texts of one shape, such as "192.168.000.001": separators stand, typing
/// overwrites, Backspace and Delete blank the slots ('_'). Delete blanks the next character and
/// leaves the cursor. A pasted text is read whatever its separators; one that does not fit changes
/// nothing.
class GUIBASE_EXPORT MaskedLineEdit : public QLineEdit
{
    Q_OBJECT
    /// See setMask().
    Q_PROPERTY(QString mask READ mask WRITE setMask)
    /// See setFreeTextAllowed().
    Q_PROPERTY(bool freeTextAllowed READ isFreeTextAllowed WRITE setFreeTextAllowed)
    /// See isComplete().
    Q_PROPERTY(bool complete READ isComplete)
public:
    explicit MaskedLineEdit(QWidget* parent = nullptr);
    ~MaskedLineEdit() override;

    /// In the pattern 9 stands for a digit, A for a letter from A to Z, X for either, and [NS] or
    /// [A-HK] for one of these characters. Everything else is a separator, also one of them behind
    /// a backslash. Letters become those of the mask in either case. A pattern without slots, such
    /// as the empty one at first, leaves a plain line edit. The text is brought into the shape, or
    /// blanked where it does not fit, unless free texts are allowed.
    void setMask(const QString& pattern);
    QString mask() const;

    /// Whether the user may also type a text of another shape by typing over the whole one; false
    /// at first. A text in the shape of the mask keeps it all the same.
    void setFreeTextAllowed(bool allowed);
    bool isFreeTextAllowed() const;

    /// Tells whether a text may take the place of the whole text, wherever it is pasted.
    using WholeTextTest = std::function<bool(const QString& text)>;
    /// Only for free texts. An empty function, as at first, holds for none.
    void setWholeTextTest(WholeTextTest test);

    /// Whether the text has the shape of the mask and no blank.
    bool isComplete() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Private;
    const std::unique_ptr<Private> m_d;
};
