// SPDX-License-Identifier: MIT
#include <valueframework/valuebase.h>

#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

#include <QDebug>

ValueBase::ValueBase(const QString& name)
    : m_name(name)
{}

ValueBase::~ValueBase()
{
    leave();
}

const QString& ValueBase::GetName() const
{
    return m_name;
}

QString ValueBase::GetPathName() const
{
    return m_path.isEmpty() ? m_name : m_path;
}

void ValueBase::leave()
{
    Tree::Instance().release(this);
    announceGone();
}

void ValueBase::aboutToChange()
{
    if (!m_path.isEmpty())
        UndoRecording::Instance().noteChange(*this);
}

bool ValueBase::tell(TChangeCode code)
{
    const auto notify = [this](TChangeCode next) { return Notify(next); };
    const ChangeQueue::Outcome outcome = m_untold.run(code, notify);
    if (outcome == ChangeQueue::Restless)
        qWarning("The value %s changes with every notification", qUtf8Printable(GetPathName()));
    return outcome != ChangeQueue::Gone;
}

bool ValueBase::convertVariant(QVariant& value, QMetaType type)
{
    if (!value.isValid() || value.isNull())
        return false;
    if (type.id() == QMetaType::Bool && value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed().toLower();
        const bool isTrue = text == QStringLiteral("true") || text == QStringLiteral("1");
        if (!isTrue && text != QStringLiteral("false") && text != QStringLiteral("0"))
            return false;
        value = isTrue;
        return true;
    }
    return value.convert(type);
}
