// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/integralnumberdisplayformat.h>

#include <QLineEdit>
#include <QTest>
#include <QWidget>

/// Shows the box with the focus, and the text selected.
inline void activate(QWidget& box)
{
    box.show();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    box.setFocus();
    QTRY_VERIFY(box.hasFocus());
    QTRY_VERIFY(box.findChild<QLineEdit*>()->hasSelectedText());
}

/// Replaces the text of a box by typing, and commits it.
template <typename Box>
void enter(Box& box, const QString& text)
{
    QLineEdit* edit = box.inputLineEdit();
    edit->selectAll();
    edit->insert(text); // Keys that no keyboard has, too.
    Q_EMIT edit->textEdited(edit->text());
    QTest::keyClick(&box, Qt::Key_Return);
}

/// A format that writes "# 7 suffix".
template <typename T>
std::unique_ptr<IntegralNumberDisplayFormat<T>> integerFormat(int base, const char* suffix)
{
    auto format = std::make_unique<IntegralNumberDisplayFormat<T>>();
    format->setBase(base);
    format->setPrefix(QStringLiteral("#"));
    format->setSuffix(QString::fromLatin1(suffix));
    return format;
}
