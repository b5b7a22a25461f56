// SPDX-License-Identifier: MIT
#pragma once

/// What every typed input declares: meta-object, properties, signals and slots under the name
/// `Type`. The signals implement the operations of `Base`. A class that uses the macro only adds
/// its constructor and destructor.
#define GUIBASE_TYPED_INPUT_MEMBERS(Base, Type)                                                    \
    Q_OBJECT                                                                                       \
    Q_PROPERTY(Type value READ value WRITE setValue NOTIFY valueChanged USER true)                 \
    Q_PROPERTY(Type minimum READ minimum WRITE setMinimum NOTIFY minimumChanged)                   \
    Q_PROPERTY(Type maximum READ maximum WRITE setMaximum NOTIFY maximumChanged)                   \
public:                                                                                            \
    using Base::setRange;                                                                          \
Q_SIGNALS:                                                                                         \
    /** The value has become another one. */                                                       \
    void valueChanged(Type value) override;                                                        \
    /** The range begins at another value. */                                                      \
    void minimumChanged(Type minimum) override;                                                    \
    /** The range ends at another value. */                                                        \
    void maximumChanged(Type maximum) override;                                                    \
    /** At least one end of the range is another one. */                                           \
    void rangeChanged(Type minimum, Type maximum) override;                                        \
public Q_SLOTS:                                                                                    \
    void setValue(Type value) override                                                             \
    {                                                                                              \
        Base::setValue(value);                                                                     \
    }                                                                                              \
    void setMinimum(Type minimum)                                                                  \
    {                                                                                              \
        Base::setMinimum(minimum);                                                                 \
    }                                                                                              \
    void setMaximum(Type maximum)                                                                  \
    {                                                                                              \
        Base::setMaximum(maximum);                                                                 \
    }                                                                                              \
    void setRange(Type first, Type second)                                                         \
    {                                                                                              \
        Base::setRange(first, second);                                                             \
    }

/// The declaration of a spin box for one type of numbers.
#define GUIBASE_NUMBER_SPIN_BOX(Class, Type)                                                       \
    class GUIBASE_EXPORT Class : public NumberSpinBoxBase<Type>                                    \
    {                                                                                              \
        GUIBASE_TYPED_INPUT_MEMBERS(NumberSpinBoxBase<Type>, Type)                                 \
    public:                                                                                        \
        Q_PROPERTY(Type singleStep READ singleStep WRITE setSingleStep NOTIFY singleStepChanged)   \
        explicit Class(QWidget* parent = nullptr);                                                 \
        ~Class() override;                                                                         \
    Q_SIGNALS:                                                                                     \
        /** Steps have another size. */                                                            \
        void singleStepChanged(Type step) override;                                                \
    public Q_SLOTS:                                                                                \
        void setSingleStep(Type step) { NumberSpinBoxBase<Type>::setSingleStep(step); }            \
    };

/// The declaration of a combo box for one type of numbers.
#define GUIBASE_NUMBER_COMBO_BOX(Class, Type)                                                      \
    class GUIBASE_EXPORT Class : public NumberComboBoxBase<Type>                                   \
    {                                                                                              \
        GUIBASE_TYPED_INPUT_MEMBERS(NumberComboBoxBase<Type>, Type)                                \
        void selectClosestIndexForValue(Type value) override                                       \
        {                                                                                          \
            NumberComboBoxBase<Type>::selectClosestIndexForValue(value);                           \
        }                                                                                          \
                                                                                                   \
    public:                                                                                        \
        explicit Class(QWidget* parent = nullptr);                                                 \
        ~Class() override;                                                                         \
    };

/// Calls `MACRO(name part, type name)` for the number types, under the names that meta-objects
/// show.
#define GUIBASE_FOR_EACH_NUMBER_INPUT(MACRO)                                                       \
    MACRO(Int8, qint8)                                                                             \
    MACRO(UInt8, quint8)                                                                           \
    MACRO(Int16, qint16)                                                                           \
    MACRO(UInt16, quint16)                                                                         \
    MACRO(Int32, int)                                                                              \
    MACRO(UInt32, quint32)                                                                         \
    MACRO(Int64, qint64)                                                                           \
    MACRO(UInt64, quint64)                                                                         \
    MACRO(Double, double)
