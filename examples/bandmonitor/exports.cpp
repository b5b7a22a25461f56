// SPDX-License-Identifier: MIT
#include "exports.h"

#include "centre/bandview.h"
#include "mainwindow.h"
#include "model/textfile.h"
#include "panels/eventlogpanel.h"
#include "panels/signalspanel.h"
#include "settings/keys.h"
#include "settings/settings.h"

#include <radiopanes/panes/spectrumpane.h>
#include <radiopanes/panes/waterfallpane.h>

#include <guibase/dialogs/modaldialogs.h>

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPixmap>

namespace bandmonitor {

namespace {

constexpr auto copyKeys = Qt::CTRL | Qt::ALT;
constexpr auto exportKeys = Qt::CTRL | Qt::ALT | Qt::SHIFT;

QByteArray pngOf(const QPixmap& picture)
{
    QBuffer buffer;
    picture.save(&buffer, "PNG");
    return buffer.data();
}

QString plain(QString title)
{
    return title.remove(u'&');
}

} // namespace

Exports::Exports(MainWindow& window)
    : QObject(&window)
    , m_window(window)
    , m_copyMenu(new QMenu(tr("&Copy"), &window))
    , m_exportMenu(new QMenu(tr("&Export"), &window))
{
    BandView& band = window.bandView();
    m_items = {
        {tr("Picture of the &window"),
         Qt::Key_W,
         tr("window"),
         [&window] { return window.grab(); },
         {}},
        {tr("Picture of the &spectrum"),
         Qt::Key_S,
         tr("spectrum"),
         [&band] { return band.spectrum().grab(); },
         {}},
        {tr("Picture of the wate&rfall"),
         Qt::Key_R,
         tr("waterfall"),
         [&band] { return band.waterfall().grab(); },
         {}},
        {tr("S&ignals as text"),
         Qt::Key_I,
         tr("signals"),
         {},
         [&window] { return window.panel<SignalsPanel>().text(); }},
        {tr("&Events as text"),
         Qt::Key_E,
         tr("events"),
         {},
         [&window] { return window.panel<EventLogPanel>().shownText(); }},
    };
    for (const Item& item : m_items) {
        Keys::addEntry(*m_copyMenu, item.title, copyKeys | item.key, [this, &item] { copy(item); });
        Keys::addEntry(*m_exportMenu, tr("%1…").arg(item.title), exportKeys | item.key,
                       [this, &item] { write(item); });
    }
}

Exports::~Exports() = default;

void Exports::copy(const Item& item)
{
    if (item.picture)
        QApplication::clipboard()->setPixmap(item.picture());
    else
        QApplication::clipboard()->setText(item.text());
    Q_EMIT done(tr("Copied: %1").arg(plain(item.title)));
}

QString Exports::proposedPath(const Item& item) const
{
    const QString name = QStringLiteral("%1 %2.%3")
                             .arg(m_window.baseName(), item.fileName,
                                  item.picture ? QStringLiteral("png") : QStringLiteral("txt"));
    return QDir(Settings::lastFolder()).filePath(name.trimmed());
}

void Exports::write(const Item& item)
{
    // As it is now: the replay goes on behind the dialog.
    const QByteArray content = item.picture ? pngOf(item.picture()) : item.text().toUtf8();
    const QString filter = item.picture ? tr("Pictures (*.png)") : tr("Text files (*.txt)");
    const QString path = ModalDialogs::askForFile(
        &m_window, {QFileDialog::AcceptSave, plain(item.title), proposedPath(item), filter});
    if (path.isEmpty())
        return;
    if (const std::optional<QString> problem = writeTextFile(path, content)) {
        Q_EMIT failed(path, *problem);
        return;
    }
    Settings::setLastFolder(QFileInfo(path).absolutePath());
    Q_EMIT done(tr("Saved as %1").arg(path));
}

} // namespace bandmonitor
