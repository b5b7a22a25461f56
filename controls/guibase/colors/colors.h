// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/colors/colordefinitionset.h>
#include <guibase/guibase_export.h>

#include <QCoreApplication>
#include <QString>

/// The registry of all colours that a slot of the colour set may have, in three sets by id:
/// system colours (0 to 5), the fixed palette (1000 to 1097), user colours (2000 to 2015).
///
/// One object per process, made by the first Instance(). The sets are filled once; system and user
/// colours are changed in place, so that whoever holds an entry sees its new colour.
class GUIBASE_EXPORT Colors
{
    Q_DECLARE_TR_FUNCTIONS(Colors)
public:
    /// Usable without an application object. GUI thread only.
    static Colors& Instance();
    virtual ~Colors();
    Colors(const Colors&) = delete;
    Colors& operator=(const Colors&) = delete;

    /// The three sets. Owned by this object.
    ColorDefinitionSet& GetSystemColors() { return m_systemColors; }
    ColorDefinitionSet& GetColors() { return m_palette; }
    ColorDefinitionSet& GetUserColors() { return m_userColors; }

    /// The entry with this id, null when there is none. Never fails for any id.
    ColorDefinition* GetColorDefinition(int id);

    /// The translated display name of an id, "Undefined" for an id without an entry.
    static QString GetName4Id(int id);

    /// Takes the system colours from the application's palette (group Active):
    /// Background = Window, Text = WindowText, CaptionText = HighlightedText, Caption = Highlight,
    /// Light = Light, Dark = Dark. Text is read from WindowText, not from Text, because it is drawn
    /// on Background. Without a GUI application they are those of a light desktop. They do not
    /// follow a later change of the palette by themselves.
    void RestoreSystemColors();

private:
    Colors();

    ColorDefinitionSet m_systemColors;
    ColorDefinitionSet m_palette;
    ColorDefinitionSet m_userColors;
};
