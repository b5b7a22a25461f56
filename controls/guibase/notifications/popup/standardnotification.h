// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QColor>
#include <QDialogButtonBox>
#include <QWidget>

#include <memory>

class QAbstractButton;
class QPixmap;
class StandardNotificationPrivate;

/// The ready-made pop-up: a frameless tinted panel with an icon, a bold title, a text and buttons.
/// Notifications makes it, stacks it and shows it; it never takes the keyboard focus.
class GUIBASE_EXPORT StandardNotification : public QWidget
{
    Q_OBJECT
public:
    /// An empty pop-up in defaultColor().
    explicit StandardNotification(QWidget* parent = nullptr);
    ~StandardNotification() override;

    /// A light yellow.
    static QColor defaultColor();
    QColor color() const;
    /// Tints the panel from this color to a lighter one; the texts turn black or white, whichever
    /// can be read on both. An invalid color is the default one.
    void setColor(const QColor& color);
    /// Made smaller when it is larger than 128 by 128. It is the window icon as well.
    void setIcon(const QPixmap& icon);
    QString title() const;
    /// The bold text, up to three lines, and the window title. Plain text.
    void setTitle(const QString& title);
    QString text() const;
    /// May hold rich text, which the history and assistive technologies get as plain text. The
    /// panel grows with it up to 15 lines; of a text of more than 1000 characters the beginning is
    /// shown, without its markup.
    void setText(const QString& text);
    QDialogButtonBox::StandardButtons buttons() const;
    /// Replaces the buttons. A click on any closes the pop-up.
    void setButtons(QDialogButtonBox::StandardButtons buttons);

Q_SIGNALS:
    /// A button that accepts was clicked, such as Ok or Yes.
    void accepted();
    /// A button that rejects was clicked, such as Cancel or No.
    void rejected();
    /// Any button was clicked; the pop-up closes next.
    void clicked(QDialogButtonBox::StandardButton button);

private Q_SLOTS:
    void onButtonClicked(QAbstractButton* button);

private:
    std::unique_ptr<StandardNotificationPrivate> d;
};
