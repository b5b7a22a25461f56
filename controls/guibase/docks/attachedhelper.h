// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QVariant>

/// The convention by which a helper is attached to the object it serves: a dynamic property of that
/// object, with a fixed name, holds the helper as a QObject*.
namespace AttachedHelpers {

/// The helper under this property; null when there is none, or one of another class.
template <class Helper>
Helper* get(const QObject& served, const char* property)
{
    return qobject_cast<Helper*>(served.property(property).template value<QObject*>());
}

/// A member of a helper that enters it under the property, and clears the property again in the
/// helper's destructor, so that it never dangles.
class Attachment
{
public:
    /// The property's name must be a literal.
    Attachment(QObject& served, const char* property, QObject& helper)
        : m_served(&served)
        , m_property(property)
        , m_helper(&helper)
    {
        served.setProperty(property, QVariant::fromValue(&helper));
    }
    ~Attachment()
    {
        if (m_served && m_served->property(m_property).value<QObject*>() == m_helper)
            m_served->setProperty(m_property, QVariant());
    }
    Q_DISABLE_COPY_MOVE(Attachment)

private:
    QPointer<QObject> m_served;
    const char* m_property;
    const QObject* m_helper;
};

} // namespace AttachedHelpers
