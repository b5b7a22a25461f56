// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>

#include <type_traits>

namespace ValueWidgetBinding::Internal {

/// How a binding reads, writes and follows what a widget holds. This is the way of most widgets,
/// which have `value`, `setValue` and `valueChanged`; the others stand below.
template <typename W>
struct WidgetAccess
{
    static auto get(const W& widget) { return widget.value(); }
    template <typename Shown>
    static void set(W& widget, const Shown& shown)
    {
        widget.setValue(shown);
    }
    static constexpr auto changed = &W::valueChanged;
};

template <>
struct WidgetAccess<QAbstractButton>
{
    static bool get(const QAbstractButton& button) { return button.isChecked(); }
    static void set(QAbstractButton& button, bool checked) { button.setChecked(checked); }
    static constexpr auto changed = &QAbstractButton::toggled;
};

template <>
struct WidgetAccess<QComboBox>
{
    static int get(const QComboBox& box) { return box.currentIndex(); }
    static void set(QComboBox& box, int index) { box.setCurrentIndex(index); }
    static constexpr auto changed = &QComboBox::currentIndexChanged;
};

template <>
struct WidgetAccess<QDateTimeEdit>
{
    static QDateTime get(const QDateTimeEdit& edit) { return edit.dateTime(); }
    static void set(QDateTimeEdit& edit, const QDateTime& time) { edit.setDateTime(time); }
    static constexpr auto changed = &QDateTimeEdit::dateTimeChanged;
};

template <>
struct WidgetAccess<QLabel>
{
    static QString get(const QLabel& label) { return label.text(); }
    static void set(QLabel& label, const QString& text) { label.setText(text); }
};

template <>
struct WidgetAccess<QLineEdit>
{
    static QString get(const QLineEdit& edit) { return edit.text(); }
    static void set(QLineEdit& edit, const QString& text) { edit.setText(text); }
    static constexpr auto changed = &QLineEdit::textChanged;
};

template <>
struct WidgetAccess<QPlainTextEdit>
{
    static QString get(const QPlainTextEdit& edit) { return edit.toPlainText(); }
    static void set(QPlainTextEdit& edit, const QString& text) { edit.setPlainText(text); }
    static constexpr auto changed = &QPlainTextEdit::textChanged;
};

/// What a widget of the class holds.
template <typename W>
using ShownBy = std::decay_t<decltype(WidgetAccess<W>::get(std::declval<const W&>()))>;

/// Whether the widget has limits that a value can set.
template <typename W>
inline constexpr bool hasLimits = requires(W& widget)
{
    widget.setRange(widget.minimum(), widget.maximum());
    WidgetAccess<W>::set(widget, widget.minimum());
};

/// Integer widgets that show real numbers in parts of their range.
template <typename W>
inline constexpr bool isScale =
    std::is_base_of_v<QAbstractSlider, W> || std::is_same_v<W, QProgressBar>;

} // namespace ValueWidgetBinding::Internal
