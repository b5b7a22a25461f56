// SPDX-License-Identifier: MIT
#pragma once

#include "mainwindow.h"
#include "model/samplegenerator.h"
#include "support/guardedtest.h"

#include <QAction>
#include <QSet>

/// The base of test classes that work in the main window of the application.
class MainWindowTest : public GuardedTest
{
protected:
    /// Makes the window anew, and opens the sample in it.
    void openWindow(QSize size = {700, 600})
    {
        m_window.reset();
        m_window = std::make_unique<bandmonitor::MainWindow>();
        m_window->resize(size);
        m_window->show();
        open(bandmonitor::samplePath());
    }
    /// Opens the recording, and waits until it is there.
    void open(const QString& file)
    {
        QSignalSpy opened(&m_window->session(), &bandmonitor::Session::opened);
        QSignalSpy shown(&m_window->session(), &bandmonitor::Session::sweepShown);
        m_window->open(file);
        QVERIFY(opened.wait());
        QSet<qsizetype> positions;
        for (const QList<QVariant>& sweep : std::as_const(shown))
            positions << sweep.first().value<qsizetype>();
        QCOMPARE(positions.size(), shown.size()); // no sweep is shown twice
    }
    /// The menu entry whose text begins so, not counting the marks of the keys.
    QAction* entry(const char* text) const
    {
        for (QAction* action : m_window->findChildren<QAction*>()) {
            if (action->text().remove(u'&').startsWith(QString::fromUtf8(text)))
                return action;
        }
        return nullptr;
    }
    void tidy() override { m_window.reset(); }

    std::unique_ptr<bandmonitor::MainWindow> m_window;
};
