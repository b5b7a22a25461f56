// SPDX-License-Identifier: MIT
#include "formbinding.h"

#include "actionbinding.h"
#include "createbyclass_p.h"
#include "valuewidgetbinding.h"

#include <valueframework/tree.h>

#include <QWidget>

namespace ValueWidgetBinding {

namespace {

QString objectNameOf(const QString& path, const QString& basePath, const QString& valueName)
{
    QString name =
        path == basePath ? valueName : path.mid(basePath.isEmpty() ? 0 : basePath.size() + 1);
    return name.replace(QLatin1Char('/'), QLatin1Char('_'));
}

/// A binding is a child of what it binds, and has the path in its name.
template <typename Binding>
bool isBound(const QObject& target, const ValueBase& value)
{
    const QString name = QStringLiteral("{%1}->{%2}").arg(value.GetPathName(), target.objectName());
    return target.findChild<Binding*>(name, Qt::FindDirectChildrenOnly) != nullptr;
}

void bindAction(FormBindings& result, ValueBase& value, QAction& action)
{
    auto* truth = dynamic_cast<Value<bool>*>(&value);
    if (truth == nullptr)
        result.pathsOfOtherKind << value.GetPathName();
    else if (!isBound<ActionBinding>(action, value))
        result.actions.push_back(new ActionBinding(*truth, action));
}

void bindWidget(FormBindings& result, ValueBase& value, QWidget& widget, int delay)
{
    if (isBound<ValueWidgetBinding>(widget, value))
        return;
    const auto binding = Internal::createByClass(value, widget);
    if (!binding) {
        result.pathsOfOtherKind << value.GetPathName();
    } else if (*binding != nullptr) {
        (*binding)->setDelay(delay);
        result.bindings.push_back(*binding);
    }
}

} // namespace

FormBindings BindForm(QWidget& form, const QString& basePath, int delay)
{
    FormBindings result;
    const QString base = Tree::NormalizedPath(basePath);
    const QStringList paths = Tree::Instance().GetPaths(base);
    for (const QString& path : paths) {
        ValueBase* value = Tree::Instance().Find(path);
        if (value == nullptr)
            continue; // Showing another value has made it go.
        const QString name = objectNameOf(path, base, value->GetName());
        if (auto* widget = form.findChild<QWidget*>(name))
            bindWidget(result, *value, *widget, delay);
        else if (auto* action = form.findChild<QAction*>(name))
            bindAction(result, *value, *action);
        else
            result.pathsWithoutWidget << path;
    }
    return result;
}

} // namespace ValueWidgetBinding
