// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/changequeue.h>
#include <valueframework/observable.h>

#include <QMetaType>
#include <QString>
#include <QVariant>

/// A named observable value. A value that is in the value tree has a path; see Tree.
///
/// An observer may change the value that it is told of: the change is told once the running
/// notification is over, from the first observer to the last, until nothing changes any more. A
/// value that does not come to rest within ChangeQueue::longestRun notifications is reported.
class VALUEFRAMEWORK_EXPORT ValueBase : public Observable
{
public:
    /// See GetName().
    explicit ValueBase(const QString& name);
    /// Leaves the value tree.
    ~ValueBase() override;

    /// The last part of the path in the tree.
    const QString& GetName() const;
    /// The path in the value tree ("receiver/frequency"), or the name for a value outside it.
    QString GetPathName() const;

    /// The value as text-convertible variant, for persistence and undo; SetVariant() refuses, with
    /// false and no change, what does not fit the kind of value.
    virtual QVariant GetVariant() const = 0;
    virtual bool SetVariant(const QVariant& value) = 0;

protected:
    /// To be called first by the destructors of the concrete values: leaves the value tree and
    /// tells the observers that the value is gone, while it is whole and still knows its path.
    void leave();

    /// To be called by the setters right before the value changes; feeds undo recordings.
    void aboutToChange();

    /// To be called by the setters once the value has changed. False when the value was destroyed
    /// meanwhile: the caller must not touch it any more.
    bool tell(TChangeCode code);

    /// Converts as QVariant does, but refuses nulls, and texts other than "true", "false", "1" and
    /// "0" for a bool.
    static bool convertVariant(QVariant& value, QMetaType type);

private:
    friend class Tree;
    QString m_name;
    QString m_path;
    ChangeQueue m_untold;
};
