// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/colordefinition.h>
#include <guibase/colors/icolorbase.h>
#include <guibase/colors/ihaspropertypage.h>
#include <guibase/guibase_export.h>

#include <QColor>
#include <QObject>
#include <QString>

#include <memory>

class ColorsCtrl;
class QComboBox;
class QWidget;

/// The colours of all screen elements: which entry of the colour catalogue each slot shows.
///
/// One object per process, made by the first Instance(); it may be used before the application
/// object exists and after it is gone. GUI thread only. Whoever draws with its colours repaints on
/// GuiBase::signalColorsChanged().
class GUIBASE_EXPORT ColorSet final : public QObject, public IColorBase, public IHasPropertyPage
{
    Q_OBJECT
public:
    /// The current file name while the factory assignment is in use.
    static constexpr const char* factoryDefaultName =
        QT_TRANSLATE_NOOP("ColorSet", "*** Factory Default ***");

    /// The names of the other sets that come with the library: for dark desktops, and for people
    /// who cannot tell red from green. SetApplication() chooses the dark one when nothing is stored
    /// yet and the desktop is dark.
    static constexpr const char* darkDesktopName = "*** Dark Desktop ***";
    static constexpr const char* colorBlindName = "*** Color Blind ***";

    /// At first use: the factory assignment, not dirty, show-in-dialog mask 1.
    static ColorSet& Instance();
    ~ColorSet() override;

    // --- Colours -------------------------------------------------------------------------------

    /// The colour of the slot; the reference is good as long as the slot keeps its definition. An
    /// empty slot is cyan, an index outside 0 to 149 red; both leave a trace (bit 0x20).
    const QColor& GetColor(ECOLOR slot) const override;
    const QColor& operator[](ECOLOR slot) const { return GetColor(slot); }
    /// Null for an empty slot and outside 0 to 149.
    const ColorDefinition* GetColorDefinition(ECOLOR slot) const;

    /// Assigns the palette's entry of this colour, else the user colours' one, else empties the
    /// slot. The set is dirty afterwards. Outside 0 to 149 nothing happens.
    /// `emitSignal` announces the change of colours.
    void SetColor(ECOLOR slot, const QColor& color, bool emitSignal);
    /// Assigns an entry of the catalogue, which must outlive this object; null empties the slot.
    /// Nothing happens, not even the signal, when the slot has an equal definition already.
    void SetColor(ECOLOR slot, const ColorDefinition* definition, bool emitSignal);

    /// 'a' and 'A' are 0. Never fails; other characters give what the arithmetic gives, which may
    /// lie outside the slots.
    static ECOLOR Type2Index(char letter);
    static char Index2Type(ECOLOR index);
    /// The colour of slot Type2Index(letter), that is one of the slots 0 to 25. The slots
    /// SignalTypeA to SignalTypeQ that the editor shows are a different matter.
    const QColor& GetSignalTypeColor(char letter) const { return GetColor(Type2Index(letter)); }

    /// Keeps the assignment and the current file name; Restore() takes them back and announces the
    /// change. Whether the set is dirty is not touched. An empty slot comes back as the system
    /// background, as from a file. Restore() without Backup() gives the factory assignment.
    void Backup();
    void Restore();

    // --- Colour-set files ------------------------------------------------------------------------

    /// The colour-set file last loaded or saved, with its whole path, or factoryDefaultName.
    const QString& GetName() const;
    /// Whether a slot was set since the last load, save or restoring.
    bool GetDirty() const;

    /// Writes the assignment to the file `name`, which becomes the current one when it has more
    /// than one character; otherwise to the current file. Asks for a file when that cannot be
    /// opened; "**" therefore always asks. A name that the user types is put in lower case, but for
    /// its folders, and gets the extension ".cst"; the user is asked before an existing file of
    /// that name is replaced.
    ///
    /// When the user gives up, nothing is written, the set stays dirty and a given name stays the
    /// current one; Backup() and Restore() help. A file that cannot be written is reported, and
    /// keeps what it held unless its folder admits no second file to write to first. Afterwards the
    /// file holds the 600 bytes of the assignment and nothing else.
    void Save(QWidget* parent, const QString& name);

    /// Reads the file `name` and announces the change of colours. Nothing happens when it is the
    /// current file. Offers to save a dirty set first. An empty name asks for a file. When the file
    /// cannot be opened the user may choose another one, else the factory assignment is restored;
    /// cancelling the file dialog counts as a file that cannot be opened.
    /// factoryDefaultName, also translated, restores the factory assignment without announcing it.
    /// darkDesktopName and colorBlindName load the other sets that come with the library.
    void Load(QWidget* parent, const QString& name);

    /// Loads an entry of the list that UpdateComboBox() made. 0 restores the factory assignment and
    /// announces the change, unless it is the current one. Outside the list nothing happens.
    void Load(int index);

    /// Loads the first file (by name) among the ".cst" files of the directory whose name holds
    /// "print" in any case. False, with nothing done, without such a file.
    bool LoadPrinterSet();

    /// A combo box with the known colour-set files, which belongs to `parent`. Connect its
    /// activated(int) to Load(int).
    QComboBox* GetColorSetsComboBox(QWidget* parent);
    /// Fills the box with the factory default, the ".cst" files of the directory of the last file
    /// loaded or saved (at first the current one), and the other sets that come with the library,
    /// without a signal of the box. The current set is selected and marked with " [changed]" while
    /// it is dirty.
    void UpdateComboBox(QComboBox* box);

    // --- Editor ----------------------------------------------------------------------------------

    /// Which groups the editor shows, see ColorSlotGroup::maskBit; 1 at first.
    void SetShowInDialog(quint32 mask);
    void AddShowInDialog(quint32 bits);
    quint32 GetShowInDialog() const;

    /// Makes a new editor (ColorsCtrl) under `parent`.
    QWidget* GetPropertyPage(QWidget* parent, const char* name) override;
    QString GetPropertyPagePath() const override;
    /// Makes an editor that accepts its changes on the parent's signal applyButtonPressed(), if the
    /// parent has that.
    QWidget* GetCtrl(QWidget* parent);

public Q_SLOTS:
    /// Sets the built-in assignment; it becomes the current set and is not dirty. No signal.
    void slotRestoreFactoryColors();
    /// Reads the system colours from the application's palette anew. The set is not dirty
    /// afterwards. No signal.
    void slotRestoreSystemColors();
    /// Has the editor made last accept its changes; nothing happens without one.
    void slotAcceptPropertyChanges() override;

private:
    ColorSet();

    void setDefinition(ECOLOR slot, const ColorDefinition* definition, bool emitSignal);
    ColorsCtrl* makeEditor(QWidget* parent);

    struct Private;
    std::unique_ptr<Private> d;
};
