// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QSplitter>
#include <QString>

#include <memory>

/// A splitter that keeps its positions from run to run, under its name followed by its variant.
///
/// Positions are stored whenever the user moves a handle. They come back when the splitter gets its
/// widgets, is shown, or gets another variant, but not when its window was only minimized. With an
/// empty name nothing is kept. The widgets follow a SplitterHandle when it is let go.
class GUIBASE_EXPORT Splitter : public QSplitter
{
    Q_OBJECT
    /// See setStorageName().
    Q_PROPERTY(QString storageName READ storageName WRITE setStorageName)
public:
    explicit Splitter(QWidget* parent = nullptr);
    /// The positions are kept under `name`, if there is one.
    explicit Splitter(Qt::Orientation orientation, QWidget* parent = nullptr);
    Splitter(Qt::Orientation orientation, QWidget* parent, const QString& objectName,
             const QString& name);
    ~Splitter() override;

    /// The name that the positions are kept under from now on; applies those that are stored. The
    /// one given to the constructor at first.
    QString storageName() const;
    void setStorageName(const QString& name);

    /// Sizes in pixels, by widget. Sizes beyond the widgets are kept for the widgets that are added
    /// next, until the user moves a handle. Widgets without a size, or with a negative one, get the
    /// size they ask for.
    void setSizes(const QList<int>& sizes);
    /// As in QSplitter; the widget also gets the size that is stored or kept for it. A widget that
    /// is only made a child of the splitter gets it as soon as the event loop runs.
    void addWidget(QWidget* widget);
    void insertWidget(int index, QWidget* widget);
    /// Applies the positions that are stored for the variant, here and in child splitters.
    void setVariant(const QString& variant);
    /// Forgets the positions that are stored for the name and the variant. The present ones stay.
    void forgetSettings();

    /// Moves the border between the widgets next to the handle with this index by so many pixels
    /// towards the last widget (negative: the first), as far as their minimum sizes allow, as if
    /// the user had done it.
    void shiftHandle(int index, int pixels);
    /// Gives the two widgets next to the handle equal sizes, as if the user had done it.
    void equalizeNeighbours(int index);
    /// To be called by a handle before the mouse moves it: hidden widgets keep their sizes then.
    void beginMove();

public Q_SLOTS:
    /// Stores the positions; connected to splitterMoved().
    void slotKeepSettings(int position, int index);

protected:
    /// Part of every constructor.
    void init();
    void showEvent(QShowEvent* event) override;
    void childEvent(QChildEvent* event) override;
    QSplitterHandle* createHandle() override;

private:
    struct Neighbours;
    struct Private;

    Neighbours neighbours(int index) const;
    int minimumSizeOf(int widgetIndex) const;
    void moveBorder(const Neighbours& border, qint64 sizeBefore, int index);
    QList<int> withHints(QList<int> sizes) const;
    void applyStored();
    void placeNewWidgets();
    void keepHiddenSizes();

    std::unique_ptr<Private> d;
};
