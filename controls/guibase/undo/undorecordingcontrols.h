// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>

/// What widgets that change values derive from, beside their widget class, to take part in undo
/// recording. See GuiUndoRecordingHelper.
class GUIBASE_EXPORT UndoRecordingControlBase
{
public:
    UndoRecordingControlBase();
    UndoRecordingControlBase(const UndoRecordingControlBase&);
    UndoRecordingControlBase& operator=(const UndoRecordingControlBase&);
    virtual ~UndoRecordingControlBase();

    /// The path in the value tree at and below which changes are recorded. Empty, as at first, for
    /// that of a container or the default one.
    void SetUndoRecordingTrigger_BasePath(const QString& path) { m_basePath = path; }
    const QString& GetUndoRecordingTrigger_BasePath() const { return m_basePath; }
    /// True at first.
    void SetUndoRecordingEnabled(bool enabled) { m_isEnabled = enabled; }
    bool IsUndoRecordingEnabled() const { return m_isEnabled; }

private:
    QString m_basePath;
    bool m_isEnabled = true;
};

/// What panels and dialogs derive from, beside their widget class, to give a base path to the
/// controls in them that have none.
class GUIBASE_EXPORT UndoRecordingControlContainerBase
{
public:
    UndoRecordingControlContainerBase();
    UndoRecordingControlContainerBase(const UndoRecordingControlContainerBase&);
    UndoRecordingControlContainerBase& operator=(const UndoRecordingControlContainerBase&);
    virtual ~UndoRecordingControlContainerBase();

    /// Empty, as at first, for that of the next container outside.
    void SetUndoRecordingTrigger_BasePath(const QString& path) { m_basePath = path; }
    const QString& GetUndoRecordingTrigger_BasePath() const { return m_basePath; }

private:
    QString m_basePath;
};
