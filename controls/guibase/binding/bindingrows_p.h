// SPDX-License-Identifier: MIT
#pragma once

/// Calls `ROW(value kind, widget class)` for everything that can be bound, but selections. A class
/// stands before its base class.
#define GUIBASE_FOR_EACH_BINDING(ROW)                                                              \
    GUIBASE_FOR_EACH_BINDING_OF_NUMBERS(ROW)                                                       \
    ROW(Value<bool>, QAbstractButton)                                                              \
    ROW(Value<QString>, QLineEdit)                                                                 \
    ROW(Value<QString>, QPlainTextEdit)                                                            \
    ROW(Value<QString>, QLabel)                                                                    \
    ROW(Value<QDateTime>, QDateTimeEdit)                                                           \
    ROW(Value<QDateTime>, SpinBoxes::QDateTimeSpinBox)                                             \
    ROW(Value<QDateTime>, QLabel)                                                                  \
    ROW(Value<GeoPosition>, CoordinateEdit)

#define GUIBASE_FOR_EACH_BINDING_OF_NUMBERS(ROW)                                                   \
    ROW(ValueNumeric<int>, QSpinBox)                                                               \
    ROW(ValueNumeric<int>, QDoubleSpinBox)                                                         \
    ROW(ValueNumeric<int>, QSlider)                                                                \
    ROW(ValueNumeric<int>, QDial)                                                                  \
    ROW(ValueNumeric<int>, QScrollBar)                                                             \
    ROW(ValueNumeric<int>, QProgressBar)                                                           \
    ROW(ValueNumeric<int>, QLabel)                                                                 \
    ROW(ValueNumeric<int>, SpinBoxes::Int8SpinBox)                                                 \
    ROW(ValueNumeric<int>, SpinBoxes::UInt8SpinBox)                                                \
    ROW(ValueNumeric<int>, SpinBoxes::Int16SpinBox)                                                \
    ROW(ValueNumeric<int>, SpinBoxes::UInt16SpinBox)                                               \
    ROW(ValueNumeric<int>, SpinBoxes::Int32SpinBox)                                                \
    ROW(ValueNumeric<int>, ComboBoxes::Int8ComboBox)                                               \
    ROW(ValueNumeric<int>, ComboBoxes::UInt8ComboBox)                                              \
    ROW(ValueNumeric<int>, ComboBoxes::Int16ComboBox)                                              \
    ROW(ValueNumeric<int>, ComboBoxes::UInt16ComboBox)                                             \
    ROW(ValueNumeric<int>, ComboBoxes::Int32ComboBox)                                              \
    ROW(ValueNumeric<int>, QComboBox)                                                              \
    ROW(ValueNumeric<int>, ControllerSlider)                                                       \
    ROW(ValueNumeric<int>, ControllerDial)                                                         \
    ROW(ValueNumeric<qint64>, SpinBoxes::FrequencySpinBox)                                         \
    ROW(ValueNumeric<qint64>, SpinBoxes::Int64SpinBox)                                             \
    ROW(ValueNumeric<qint64>, SpinBoxes::UInt32SpinBox)                                            \
    ROW(ValueNumeric<qint64>, ComboBoxes::Int64ComboBox)                                           \
    ROW(ValueNumeric<qint64>, ComboBoxes::UInt32ComboBox)                                          \
    ROW(ValueNumeric<qint64>, QLabel)                                                              \
    ROW(ValueNumeric<quint64>, SpinBoxes::UInt64SpinBox)                                           \
    ROW(ValueNumeric<quint64>, ComboBoxes::UInt64ComboBox)                                         \
    ROW(ValueNumeric<quint64>, QLabel)                                                             \
    ROW(ValueNumeric<double>, QDoubleSpinBox)                                                      \
    ROW(ValueNumeric<double>, QSlider)                                                             \
    ROW(ValueNumeric<double>, QDial)                                                               \
    ROW(ValueNumeric<double>, ControllerSlider)                                                    \
    ROW(ValueNumeric<double>, ControllerDial)                                                      \
    ROW(ValueNumeric<double>, QProgressBar)                                                        \
    ROW(ValueNumeric<double>, QLabel)                                                              \
    ROW(ValueNumeric<double>, SpinBoxes::DoubleSpinBox)                                            \
    ROW(ValueNumeric<double>, SpinBoxes::FrequencySpinBox)                                         \
    ROW(ValueNumeric<double>, ComboBoxes::DoubleComboBox)
