// SPDX-License-Identifier: MIT
#include "startupsplash_p.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace {

// Sizes in device-independent pixels.
constexpr int stripHeight = 4;
constexpr int busySteps = 20;

} // namespace

StartupSplash::StartupSplash(const QPixmap& picture)
    : QSplashScreen(picture)
{
    // Some compositors give a window that may change its size half of the screen.
    setFixedSize(size());
}

StartupSplash::~StartupSplash() = default;

QPixmap StartupSplash::plainPicture()
{
    constexpr QSize size(440, 220);
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    const QPalette palette = QGuiApplication::palette();
    picture.fill(palette.color(QPalette::Window));

    QPainter painter(&picture);
    const QRect frame(QPoint(0, 0), size);
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
    painter.setPen(palette.color(QPalette::WindowText));
    QFont font = QGuiApplication::font();
    font.setPointSize(20);
    painter.setFont(font);
    const QRect upperHalf(0, 0, size.width(), size.height() / 2);
    painter.drawText(upperHalf, Qt::AlignHCenter | Qt::AlignBottom,
                     QGuiApplication::applicationDisplayName());
    font.setPointSize(11);
    painter.setFont(font);
    painter.drawText(upperHalf.translated(0, upperHalf.height() + 8),
                     Qt::AlignHCenter | Qt::AlignTop, QCoreApplication::applicationVersion());
    return picture;
}

void StartupSplash::setText(const QString& text)
{
    m_isBusy = false;
    showMessage(text);
    paintNow();
}

void StartupSplash::advanceBusy()
{
    m_isBusy = true;
    m_busyStep = (m_busyStep + 1) % busySteps;
    paintNow();
}

void StartupSplash::paintNow()
{
    // Long enough for the window system to show the window for the first time.
    constexpr int maximumMilliseconds = 50;
    if (std::exchange(m_isPainting, true))
        return;
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers,
                                    maximumMilliseconds);
    m_isPainting = false;
}

void StartupSplash::drawContents(QPainter* painter)
{
    const QColor text = palette().color(QPalette::WindowText);
    const QRect textArea = rect().adjusted(8, 8, -8, -8 - stripHeight);
    painter->setPen(text);
    painter->drawText(textArea, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, message());
    if (m_isBusy) {
        const int partWidth = width() / 4;
        const int left = (width() + partWidth) * m_busyStep / busySteps - partWidth;
        painter->fillRect(left, height() - stripHeight, partWidth, stripHeight,
                          palette().color(QPalette::Highlight));
    }
}
