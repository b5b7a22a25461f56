// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/observable.h>

#include <QActionGroup>

class QMenu;
class ValueSelection;

namespace bandmonitor {

/// A sub-menu with one exclusive action per item of a selection, bound both ways: choosing an
/// action sets the selection, and a selection that is set elsewhere checks its action.
class SelectionActions : public QActionGroup, private IObserver
{
    Q_OBJECT
public:
    /// The selection must outlive this object, or announce its end as observables do. The menu owns
    /// this object and the actions.
    SelectionActions(ValueSelection* selection, QMenu* menu);
    ~SelectionActions() override;

Q_SIGNALS:
    /// The selection has another current item, whoever has chosen it.
    void currentChanged();

private:
    void Update(Observable* observable, TChangeCode code) override;
    void fill();
    void checkCurrent();

    ValueSelection* m_selection; ///< Null once it is gone.
    QMenu* m_menu;
};

} // namespace bandmonitor
