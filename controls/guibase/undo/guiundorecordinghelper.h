// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QCoreApplication>
#include <QString>

#include <memory>

class QWidget;
class UndoRecordingControlBase;
class UndoRecordingTriggerByValueClient;

/// Records what the user changes by a control as one undo step, for as long as it lives.
///
/// Without a base path nothing is recorded. A copy shares the step, which ends with the last of
/// them; assigning ends the step that the helper had.
class GUIBASE_EXPORT GuiUndoRecordingHelper
{
    Q_DECLARE_TR_FUNCTIONS(GuiUndoRecordingHelper)
public:
    /// A null control, or one whose recording is disabled, records nothing. An empty text becomes
    /// "Undo: last action".
    GuiUndoRecordingHelper(const UndoRecordingControlBase* control, const QString& text);
    /// For a widget of any class; one that is no control is taken for an enabled one without a base
    /// path. Steps with the same burst number, of 0 or more, that follow each other become one.
    GuiUndoRecordingHelper(const QWidget& widget, const QString& text, int burst = -1);
    GuiUndoRecordingHelper(const GuiUndoRecordingHelper& other);
    GuiUndoRecordingHelper& operator=(const GuiUndoRecordingHelper& other);
    ~GuiUndoRecordingHelper();

    /// The base path of controls that find no other one; empty at first.
    static void SetDefaultUndoRecordingTrigger_BasePath(const QString& path);
    /// Whether the containers around a control are asked for their base paths, from the inside out;
    /// false at first.
    static void SetCheckControlParentsForUndoBasePath(bool check);

private:
    QString GetUndoBasePath(const UndoRecordingControlBase* control);
    static QString basePathAround(const QWidget* widget);
    void record(const QString& basePath, const QString& text, int burst = -1);

    static QString s_sDefaultUndoRecordingTrigger_BasePath;
    static bool s_bCheckControlParentsForUndoBasePath;

    std::shared_ptr<UndoRecordingTriggerByValueClient> m_trigger;
};
