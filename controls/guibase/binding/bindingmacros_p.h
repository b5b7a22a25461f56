// SPDX-License-Identifier: MIT
#pragma once

/// The class of a binding with a name, a property, and a slot that the widget feeds.
#define GUIBASE_INPUT_BINDING(Class, ValueKind, WidgetClass, Type, property, slot)                 \
    class Class : public InputBindingOf<ValueKind, WidgetClass>::Base                              \
    {                                                                                              \
        Q_OBJECT                                                                                   \
        Q_PROPERTY(Type property READ shown WRITE setShown)                                        \
    public:                                                                                        \
        Class(ValueKind& value, WidgetClass& widget, QObject* parent)                              \
            : InputBindingOf<ValueKind, WidgetClass>::Base(value, widget, parent)                  \
        {                                                                                          \
            connect(&widget, WidgetAccess<WidgetClass>::changed, this, &Class::slot);              \
        }                                                                                          \
    public Q_SLOTS:                                                                                \
        void slot(Type entered) { widgetChanged(entered); }                                        \
    };                                                                                             \
    template <>                                                                                    \
    struct BindingFor<ValueKind, WidgetClass>                                                      \
    {                                                                                              \
        using Binding = Class;                                                                     \
    };

/// The class of a binding with a name that only shows its value.
#define GUIBASE_DISPLAY_BINDING(Class, ValueKind, WidgetClass)                                     \
    class Class : public PlainBinding<ValueKind, WidgetClass>                                      \
    {                                                                                              \
        Q_OBJECT                                                                                   \
    public:                                                                                        \
        using PlainBinding<ValueKind, WidgetClass>::PlainBinding;                                  \
    };                                                                                             \
    template <>                                                                                    \
    struct BindingFor<ValueKind, WidgetClass>                                                      \
    {                                                                                              \
        using Binding = Class;                                                                     \
    };
