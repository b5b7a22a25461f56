// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

/// Which format an input shows its value in, and which one the user has typed in last.
///
/// `Input` is the widget class. It makes this class its friend, and has the signals
/// currentDisplayFormatIndexChanged(int) and lastUsedDisplayFormatIndexChanged(int), the slot
/// updateEdit(), and selectCurrentDisplayFormatIndex().
template <typename Input>
class DisplayFormatSwitch
{
public:
    explicit DisplayFormatSwitch(Input& input)
        : m_input(input)
    {}
    DisplayFormatSwitch(const DisplayFormatSwitch&) = delete;
    DisplayFormatSwitch& operator=(const DisplayFormatSwitch&) = delete;

    int current() const { return m_current; }
    int lastUsed() const { return m_lastUsed; }
    bool isAutomatic() const { return m_automatic; }

    void setCurrent(int index)
    {
        if (index == m_current)
            return;
        m_current = index;
        const QPointer<QObject> guard(&m_input);
        Q_EMIT m_input.currentDisplayFormatIndexChanged(index);
        if (guard)
            setLastUsed(index);
        if (guard)
            m_input.updateEdit();
    }

    void setLastUsed(int index)
    {
        if (index == m_lastUsed)
            return;
        m_lastUsed = index;
        const QPointer<QObject> guard(&m_input);
        Q_EMIT m_input.lastUsedDisplayFormatIndexChanged(index);
        if (guard)
            switchIfAutomatic();
    }

    void setAutomatic(bool automatic)
    {
        m_automatic = automatic;
        switchIfAutomatic();
    }

    void switchIfAutomatic()
    {
        if (m_automatic)
            setCurrent(m_input.selectCurrentDisplayFormatIndex());
    }

private:
    Input& m_input;
    int m_current = -1;
    int m_lastUsed = -1;
    bool m_automatic = false;
};
