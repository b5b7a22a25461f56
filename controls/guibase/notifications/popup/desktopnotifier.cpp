// SPDX-License-Identifier: MIT
#include "desktopnotifier_p.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QGuiApplication>
#include <QIcon>
#include <QUrl>

namespace {

constexpr qsizetype maximumWaiting = 100;
constexpr int imageSide = 64; // pixels

QString busAddress()
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    return !address.isEmpty()
               ? address
               : QStringLiteral("unix:path=%1/bus").arg(qEnvironmentVariable("XDG_RUNTIME_DIR"));
}

/// Connects to the socket of the session bus, as the bus's address names it.
void connectToBus(QLocalSocket& socket)
{
    const QString first = busAddress().section(QLatin1Char(';'), 0, 0);
    const QString place = first.section(QLatin1Char(','), 0, 0);
    const bool isAbstract = place.startsWith(QLatin1String("unix:abstract="));
    if (!isAbstract && !place.startsWith(QLatin1String("unix:path=")))
        return;
    socket.setSocketOptions(isAbstract ? QLocalSocket::AbstractNamespaceOption
                                       : QLocalSocket::NoOptions);
    socket.connectToServer(QUrl::fromPercentEncoding(place.section(QLatin1Char('='), 1).toUtf8()));
}

/// With the picture as the service takes it: width, height, bytes of a line, with alpha, bits of a
/// sample, samples of a pixel, and the pixels as red, green, blue and alpha.
QVariantMap hintsFor(const QImage& image)
{
    if (image.isNull())
        return {};
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    QDBusArgument data;
    data.beginStructure();
    data << pixels.width() << pixels.height() << static_cast<int>(pixels.bytesPerLine()) << true
         << 8 << 4
         << QByteArray(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes());
    data.endStructure();
    return {{QStringLiteral("image-data"), QVariant::fromValue(data)}};
}

} // namespace

DesktopNotifier::DesktopNotifier()
{
    connect(&m_probe, &QLocalSocket::connected, this, [this] {
        m_probe.write(QByteArray("\0AUTH\r\n", 7)); // Asks which ways to log in there are.
    });
    connect(&m_probe, &QLocalSocket::readyRead, this, [this] {
        m_isBusAwake = true;
        m_probe.abort();
        sendWaiting();
    });
}

DesktopNotifier::~DesktopNotifier() = default;

void DesktopNotifier::notify(const QString& title, const QString& text, const QIcon& icon)
{
    if (m_waiting.size() < maximumWaiting)
        m_waiting.append({title, text, icon.pixmap(imageSide).toImage()});
    if (m_isBusAwake)
        sendWaiting();
    else if (m_probe.state() == QLocalSocket::UnconnectedState)
        connectToBus(m_probe);
}

void DesktopNotifier::sendWaiting()
{
    // Not the toolkit's own connection: that is lost for good once it has failed.
    const QString name = QStringLiteral("GuiBase notifications");
    const QDBusConnection bus = QDBusConnection::connectToBus(busAddress(), name);
    if (!bus.isConnected()) {
        QDBusConnection::disconnectFromBus(name);
        m_isBusAwake = false; // The next notification asks again.
        return;
    }
    for (const auto& [title, text, image] : std::as_const(m_waiting)) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.Notifications"),
            QStringLiteral("/org/freedesktop/Notifications"),
            QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
        message << QGuiApplication::applicationDisplayName() << 0U << QString() << title
                << text.toHtmlEscaped() << QStringList() << hintsFor(image) << -1;
        bus.asyncCall(message);
    }
    m_waiting.clear();
}
