// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/files/ifileopener.h>

#include <QByteArray>
#include <QObject>

#include <functional>
#include <memory>

class FileOpenManager;
class ICfg;
class QMenu;
class QWidget;

namespace bandmonitor {

/// Asks for recordings to open and to save, and keeps the recent ones in a menu and in the
/// configuration.
class RecentRecordings : public QObject, public IFileOpener
{
    Q_OBJECT
public:
    static constexpr int maximumCount = 9; // as many as have a digit to choose them by

    explicit RecentRecordings(QWidget* parent);
    ~RecentRecordings() override;

    /// Lists them; the parent owns it.
    QMenu* menu() const { return m_menu; }
    /// Lists the recording at `path`, which was opened; one that is built into the program is not
    /// listed.
    void opened(const QString& path);
    /// It could not be opened or saved. When there is no such file it is taken out of the list.
    void failed(const QString& path);
    /// Asks for a recording.
    void choose();
    /// Asks where to save `content`, proposing a file name, and saves it. A file that is replaced
    /// stays as it is when that fails.
    void saveAs(const QString& fileName, const QByteArray& content);
    /// Asks where to save, proposing a file name, and leaves the saving to `save`.
    void askWhere(const QString& fileName, std::function<void(const QString& path)> save);

public Q_SLOTS:
    /// The file that askWhere() has asked for is written.
    void noteSaved(const QString& path);

Q_SIGNALS:
    /// The user has chosen a recording, from the list or by its name.
    void chosen(const QString& path);
    /// A file is written.
    void saved(const QString& path);
    /// saveAs() could not write the file; `reason` is one line for the user.
    void notSaved(const QString& path, const QString& reason);

private:
    void Open(const QString& fileName) override;
    void SaveAs(const QString& fileName) override;
    void write(const QString& fileName, const QByteArray& content);
    void startAt(const QString& fileName);

    QMenu* m_menu;
    std::unique_ptr<ICfg> m_cfg;
    std::unique_ptr<FileOpenManager> m_manager; ///< Uses the configuration until it dies.
    std::function<void(const QString&)> m_save;
};

} // namespace bandmonitor
