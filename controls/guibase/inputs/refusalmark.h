// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>

class QColor;
class QPalette;
class QWidget;

/// Shows on an input that it did not take what was typed: a frame in a warning colour, and the
/// reason as tool tip. The input paints the frame at the end of its paintEvent().
class GUIBASE_EXPORT RefusalMark
{
public:
    /// The widget must outlive the mark, which usually is its member.
    explicit RefusalMark(QWidget& host);
    RefusalMark(const RefusalMark&) = delete;
    RefusalMark& operator=(const RefusalMark&) = delete;

    /// Replaces the tool tip by the reason and shows it at once.
    void show(const QString& reason);
    /// Brings the former tool tip back, unless it was replaced meanwhile.
    void clear();
    bool isShown() const { return !m_reason.isEmpty(); }
    /// Empty when the mark is not shown.
    const QString& reason() const { return m_reason; }

    /// Nothing while the mark is not shown.
    void paint() const;
    /// A red that stands out from the background of texts, be it light or dark.
    static QColor color(const QPalette& palette);

private:
    void update();

    QWidget& m_host;
    QString m_reason;
    QString m_formerToolTip;
};
