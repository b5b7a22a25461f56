// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/staterecord.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>

inline const QString recordName = QStringLiteral("GuiBase_docks");

inline std::unique_ptr<ICfg> record(const QString& name = recordName)
{
    return CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(name);
}

inline QString stored(const char* key, const QString& name = recordName)
{
    return record(name)->GetString(QLatin1String(key));
}

inline QByteArray storedLayout(quint32 mode)
{
    const auto reading = StateRecord::decode(stored("State"));
    return reading && reading->layouts.contains(mode) ? reading->layouts.at(mode) : QByteArray();
}

inline QString hexadecimal(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex());
}

/// A main window with docks A and B on the left, C and D tabbed on the right, and a tool bar.
class Window : public QMainWindow
{
public:
    explicit Window(const QString& docks = QStringLiteral("ABCD"))
    {
        setCentralWidget(new QTextEdit);
        setGeometry(40, 60, 700, 500);
        for (const QChar name : docks) {
            auto* dock = new QDockWidget(name, this);
            dock->setObjectName(name);
            dock->setWidget(new QTextEdit);
            addDockWidget(
                name < QLatin1Char('C') ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea, dock);
        }
        if (dock("C") && dock("D"))
            tabifyDockWidget(dock("C"), dock("D"));
        addBar(QStringLiteral("bar"))->addAction(QStringLiteral("action"));
    }

    QDockWidget* dock(const char* name) const { return dock(QString::fromLatin1(name)); }
    QDockWidget* dock(const QString& name) const { return findChild<QDockWidget*>(name); }
    QToolBar* addBar(const QString& name)
    {
        QToolBar* bar = addToolBar(name);
        bar->setObjectName(name);
        return bar;
    }
    void enlist(const QString& name = QStringLiteral("docks"))
    {
        GuiBase::Instance().RegisterPersistentWidget(this, name);
        QVERIFY(QTest::qWaitForWindowExposed(this));
    }
};
