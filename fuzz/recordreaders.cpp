// SPDX-License-Identifier: MIT
#include "readers.h"

#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/notifications/protocol/notificationmessage.h>
#include <guibase/notifications/protocol/notificationstack.h>
#include <guibase/records/columntext.h>
#include <guibase/records/dockstatecheck.h>
#include <guibase/records/geometryrecord.h>
#include <guibase/records/headerstate.h>
#include <guibase/records/hexadecimal.h>
#include <guibase/records/maximizeddocks.h>
#include <guibase/records/splitterstatecheck.h>
#include <guibase/records/staterecord.h>

#include <QMainWindow>

namespace Fuzz {

namespace {

using QMainWindowHelpers::AutoHideSupport;

bool readLayouts(const QByteArray& bytes)
{
    const auto reading = StateRecord::decode(QString::fromLatin1(bytes));
    if (!reading)
        return false;
    const auto again = StateRecord::decode(StateRecord::encode(reading->layouts));
    expect(again && again->layouts == reading->layouts, "layouts");
    return true;
}

bool readDockState(const QByteArray& bytes)
{
    return DockStateCheck::names(bytes, 0).has_value();
}

bool readHeaderState(const QByteArray& bytes)
{
    bool isRead = false;
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical})
        isRead |= HeaderState::fromBytes(bytes, orientation).has_value();
    return isRead;
}

bool readSplitterState(const QByteArray& bytes)
{
    return SplitterStateCheck::sizes(bytes).has_value();
}

bool readGeometry(const QByteArray& bytes)
{
    const auto record = GeometryRecord::fromBytes(bytes);
    if (!record)
        return false;
    expect(record->toBytes() == bytes, "geometry");
    return true;
}

bool readColumns(const QByteArray& bytes)
{
    const auto columns = ColumnText::parse(QString::fromUtf8(bytes));
    if (!columns)
        return false;
    expect(ColumnText::parse(ColumnText::format(*columns)) == columns, "columns");
    return true;
}

bool readMaximizedDocks(const QByteArray& bytes)
{
    const auto modes = MaximizedDocksText::parse(QString::fromUtf8(bytes));
    if (!modes)
        return false;
    expect(MaximizedDocksText::parse(MaximizedDocksText::format(*modes)) == modes, "docks");
    return true;
}

bool readHexadecimal(const QByteArray& bytes)
{
    const auto decoded = Hexadecimal::decode(QString::fromUtf8(bytes));
    if (!decoded)
        return false;
    expect(Hexadecimal::decode(Hexadecimal::encode(*decoded)) == decoded, "hexadecimal");
    return true;
}

bool readHiddenDocks(const QByteArray& bytes)
{
    QMainWindow window;
    AutoHideSupport* const support =
        AutoHideSupport::install(window, Qt::LeftToolBarArea | Qt::RightToolBarArea);
    if (!support->restoreState(bytes))
        return false;
    expect(support->restoreState(support->saveState()), "hidden docks");
    return true;
}

/// Whole messages, one after the other, as a connection gives them; the rest does not count.
bool readMessages(const QByteArray& bytes)
{
    NotificationStack stack;
    bool areAllRead = bytes.size() >= NotificationMessage::size;
    for (qsizetype at = 0; at + NotificationMessage::size <= bytes.size();
         at += NotificationMessage::size) {
        const QByteArray one = bytes.mid(at, NotificationMessage::size);
        const auto message = NotificationMessage::decoded(one);
        areAllRead = areAllRead && message.has_value();
        if (!message)
            continue;
        expect(NotificationMessage::decoded(message->encoded()) == message, "message");
        stack.apply(*message, 1);
        expect(stack.countOf(1) == stack.entries().size(), "owners");
    }
    stack.hash();
    return areAllRead;
}

} // namespace

QList<Reader> recordReaders()
{
    return {{"layouts", &readLayouts},
            {"dockstate", &readDockState},
            {"headerstate", &readHeaderState},
            {"splitterstate", &readSplitterState},
            {"geometry", &readGeometry},
            {"columns", &readColumns},
            {"maximizeddocks", &readMaximizedDocks},
            {"hexadecimal", &readHexadecimal},
            {"hiddendocks", &readHiddenDocks},
            {"messages", &readMessages}};
}

} // namespace Fuzz
