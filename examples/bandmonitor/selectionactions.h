// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/observable.h>

#include <QActionGroup>
#include <QKeyCombination>
#include <QString>

class QMenu;
class ValueSelection;

namespace bandmonitor {

/// How the items of a selection stand in a menu and in the overview of keys.
struct ChoiceEntry
{
    ValueSelection* selection;
    QString pattern;          ///< Says what an item is; it stands in the place of "%1".
    QKeyCombination firstKey; ///< Of the first item; the next ones have the keys after it.
};

/// A sub-menu with one exclusive action per item of a selection, bound both ways: choosing an
/// action sets the selection, and a selection that is set elsewhere checks its action.
class SelectionActions : public QActionGroup, private IObserver
{
    Q_OBJECT
public:
    /// The selection must outlive this object, or announce its end as observables do. The menu owns
    /// this object and the actions.
    SelectionActions(const ChoiceEntry& entry, QMenu* menu);
    ~SelectionActions() override;

Q_SIGNALS:
    /// The selection has another current item, whoever has chosen it.
    void currentChanged();

private:
    void Update(Observable* observable, TChangeCode code) override;
    void fill();
    void checkCurrent();

    ValueSelection* m_selection; ///< Null once it is gone.
    const QString m_pattern;
    const QKeyCombination m_firstKey;
    QMenu* m_menu;
};

} // namespace bandmonitor
