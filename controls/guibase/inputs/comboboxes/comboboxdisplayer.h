// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/files/ilrustringlistdisplayer.h>
#include <guibase/guibase_export.h>

#include <QString>
#include <QWidget>

#include <memory>

class ICfg;
class QComboBox;

/// Fills a combo box with the texts that were chosen in it, most recent first, and keeps them in
/// the configuration; see LruStringListController. It is never shown itself.
class GUIBASE_EXPORT ComboBoxDisplayer : public QWidget, public ILruStringListDisplayer
{
    Q_OBJECT
public:
    /// Keeps at most `count` texts under the keys "<name>0", "<name>1", and so on. Neither combo
    /// box nor configuration are owned; the combo box may die first.
    ComboBoxDisplayer(QComboBox* combo, const QString& name, int count, ICfg* cfg);
    ~ComboBoxDisplayer() override;

    /// The first text replaces all items; after the last one the first item is current.
    void InsertItem(int index, const QString& text) override;
    void RemoveItem(int index) override;

public Q_SLOTS:
    /// Makes the text the most recent one.
    void Select(const QString& text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
