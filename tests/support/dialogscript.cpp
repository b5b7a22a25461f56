// SPDX-License-Identifier: MIT
#include "dialogscript.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <QTest>

DialogScript::DialogScript(const QStringList& answers)
    : m_answers(answers)
{
    connect(&m_timer, &QTimer::timeout, this, &DialogScript::step);
    m_timer.start(5);
}

void DialogScript::step()
{
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || dialog == m_answered || !dialog->isVisible())
        return;
    m_answered = dialog;
    const QString answer = m_answers.isEmpty() ? QStringLiteral("Escape") : m_answers.takeFirst();
    auto* box = qobject_cast<QMessageBox*>(dialog);
    m_shown << dialog->windowTitle() + (box ? QStringLiteral(": ") + box->text() : QString());
    if (answer == QLatin1String("Escape")) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    } else if (answer == QLatin1String("Enter")) {
        QTest::keyClick(dialog, Qt::Key_Return);
    } else if (box) {
        const auto names = QMetaEnum::fromType<QMessageBox::StandardButtons>();
        const int value = names.keyToValue(answer.toLatin1().constData());
        box->button(static_cast<QMessageBox::StandardButton>(value))->click();
    } else if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
        files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(answer);
        static_cast<QDialog*>(files)->accept();
    }
}
