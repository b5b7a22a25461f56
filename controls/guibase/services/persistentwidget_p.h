// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/persistant.h>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

/// Keeps the window geometry of one widget from run to run, in a configuration record of its own.
///
/// The widget is not owned. What it looked like last is remembered with every change, so that it
/// can be written also after the widget is gone.
class PersistentWidget : public QObject, public PersistantOwner
{
    Q_OBJECT
public:
    PersistentWidget(QWidget* widget, const QString& recordName);
    ~PersistentWidget() override;

    /// The name without what the configuration cannot hold in names: forbidden character references
    /// and colons go, blanks become '_'.
    static QString cleanedName(QString name);

    QWidget* widget() const;
    /// Tells this widget from others also while, and after, it is destroyed.
    bool watches(const QObject* object) const;
    /// Reads the record, applies it to the widget and shows the widget.
    void read();
    void write();
    /// Forgets the widget, which is no more than half there, and writes how it looked last.
    void writeLast();
    void restoreProgramStart();
    void restoreFactory();
    void capture();

    bool eventFilter(QObject* watched, QEvent* event) override;
    void ApplyPersistantBeforeWrite() override;
    void ApplyPersistantAfterRead() override;

private:
    void applyGeometry(const QByteArray& geometry);

    QPointer<QWidget> m_widget;
    const QObject* m_identity;
    Persistant m_record;
    QString m_geometryText;
    QByteArray m_startGeometry;
    QByteArray m_factoryGeometry;
};
