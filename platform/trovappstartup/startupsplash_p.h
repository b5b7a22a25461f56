// SPDX-License-Identifier: MIT
#pragma once

#include <QSplashScreen>

/// The splash screen: a picture, a text at its bottom, and below it a strip that moves on with
/// every call of advanceBusy() while the program is at work. Every change is painted at once, also
/// when no event loop runs; user input waits meanwhile.
class StartupSplash : public QSplashScreen
{
    Q_OBJECT
public:
    explicit StartupSplash(const QPixmap& picture);
    ~StartupSplash() override;

    /// A panel with the application's name and version.
    static QPixmap plainPicture();

    void setText(const QString& text);
    void advanceBusy();
    bool isBusy() const { return m_isBusy; }
    void paintNow();

protected:
    void drawContents(QPainter* painter) override;

private:
    bool m_isBusy = false;
    bool m_isPainting = false;
    int m_busyStep = 0;
};
