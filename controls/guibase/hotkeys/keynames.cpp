// SPDX-License-Identifier: MIT
#include "keynames.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct NamedKey
{
    Qt::Key key;
    const char* name;
    bool isTranslated; ///< Others are names of characters, which are the same in every language.

    QString display() const
    {
        return isTranslated ? QCoreApplication::translate("GuiBase", name)
                            : QString::fromLatin1(name);
    }
};

// The toolkit's names without their prefix, with those of the X Window System for the small Latin-1
// letters, which the toolkit does not name. The division sign (247) has none.
// clang-format off
constexpr NamedKey namedKeys[] = {
    {Qt::Key_Escape, QT_TRANSLATE_NOOP("GuiBase", "Escape"), true},
    {Qt::Key_Tab, QT_TRANSLATE_NOOP("GuiBase", "Tab"), true},
    {Qt::Key_Backtab, QT_TRANSLATE_NOOP("GuiBase", "Backtab"), true},
    {Qt::Key_Backspace, QT_TRANSLATE_NOOP("GuiBase", "Backspace"), true},
    {Qt::Key_Return, QT_TRANSLATE_NOOP("GuiBase", "Return"), true},
    {Qt::Key_Enter, QT_TRANSLATE_NOOP("GuiBase", "Enter"), true},
    {Qt::Key_Insert, QT_TRANSLATE_NOOP("GuiBase", "Insert"), true},
    {Qt::Key_Delete, QT_TRANSLATE_NOOP("GuiBase", "Delete"), true},
    {Qt::Key_Pause, QT_TRANSLATE_NOOP("GuiBase", "Pause"), true},
    {Qt::Key_Print, QT_TRANSLATE_NOOP("GuiBase", "Print"), true},
    {Qt::Key_SysReq, QT_TRANSLATE_NOOP("GuiBase", "SysReq"), true},
    {Qt::Key_Home, QT_TRANSLATE_NOOP("GuiBase", "Home"), true},
    {Qt::Key_End, QT_TRANSLATE_NOOP("GuiBase", "End"), true},
    {Qt::Key_Left, QT_TRANSLATE_NOOP("GuiBase", "Left"), true},
    {Qt::Key_Up, QT_TRANSLATE_NOOP("GuiBase", "Up"), true},
    {Qt::Key_Right, QT_TRANSLATE_NOOP("GuiBase", "Right"), true},
    {Qt::Key_Down, QT_TRANSLATE_NOOP("GuiBase", "Down"), true},
    {Qt::Key_PageUp, QT_TRANSLATE_NOOP("GuiBase", "Prior"), true},
    {Qt::Key_PageDown, QT_TRANSLATE_NOOP("GuiBase", "Next"), true},
    {Qt::Key_Shift, QT_TRANSLATE_NOOP("GuiBase", "Shift"), true},
    {Qt::Key_Control, QT_TRANSLATE_NOOP("GuiBase", "Control"), true},
    {Qt::Key_Meta, QT_TRANSLATE_NOOP("GuiBase", "Meta"), true},
    {Qt::Key_Alt, QT_TRANSLATE_NOOP("GuiBase", "Alt"), true},
    {Qt::Key_CapsLock, QT_TRANSLATE_NOOP("GuiBase", "CapsLock"), true},
    {Qt::Key_NumLock, QT_TRANSLATE_NOOP("GuiBase", "NumLock"), true},
    {Qt::Key_ScrollLock, QT_TRANSLATE_NOOP("GuiBase", "ScrollLock"), true},
    {Qt::Key_F1, QT_TRANSLATE_NOOP("GuiBase", "F1"), true},
    {Qt::Key_F2, QT_TRANSLATE_NOOP("GuiBase", "F2"), true},
    {Qt::Key_F3, QT_TRANSLATE_NOOP("GuiBase", "F3"), true},
    {Qt::Key_F4, QT_TRANSLATE_NOOP("GuiBase", "F4"), true},
    {Qt::Key_F5, QT_TRANSLATE_NOOP("GuiBase", "F5"), true},
    {Qt::Key_F6, QT_TRANSLATE_NOOP("GuiBase", "F6"), true},
    {Qt::Key_F7, QT_TRANSLATE_NOOP("GuiBase", "F7"), true},
    {Qt::Key_F8, QT_TRANSLATE_NOOP("GuiBase", "F8"), true},
    {Qt::Key_F9, QT_TRANSLATE_NOOP("GuiBase", "F9"), true},
    {Qt::Key_F10, QT_TRANSLATE_NOOP("GuiBase", "F10"), true},
    {Qt::Key_F11, QT_TRANSLATE_NOOP("GuiBase", "F11"), true},
    {Qt::Key_F12, QT_TRANSLATE_NOOP("GuiBase", "F12"), true},
    {Qt::Key_F13, QT_TRANSLATE_NOOP("GuiBase", "F13"), true},
    {Qt::Key_F14, QT_TRANSLATE_NOOP("GuiBase", "F14"), true},
    {Qt::Key_F15, QT_TRANSLATE_NOOP("GuiBase", "F15"), true},
    {Qt::Key_F16, QT_TRANSLATE_NOOP("GuiBase", "F16"), true},
    {Qt::Key_F17, QT_TRANSLATE_NOOP("GuiBase", "F17"), true},
    {Qt::Key_F18, QT_TRANSLATE_NOOP("GuiBase", "F18"), true},
    {Qt::Key_F19, QT_TRANSLATE_NOOP("GuiBase", "F19"), true},
    {Qt::Key_F20, QT_TRANSLATE_NOOP("GuiBase", "F20"), true},
    {Qt::Key_F21, QT_TRANSLATE_NOOP("GuiBase", "F21"), true},
    {Qt::Key_F22, QT_TRANSLATE_NOOP("GuiBase", "F22"), true},
    {Qt::Key_F23, QT_TRANSLATE_NOOP("GuiBase", "F23"), true},
    {Qt::Key_F24, QT_TRANSLATE_NOOP("GuiBase", "F24"), true},
    {Qt::Key_F25, QT_TRANSLATE_NOOP("GuiBase", "F25"), true},
    {Qt::Key_F26, QT_TRANSLATE_NOOP("GuiBase", "F26"), true},
    {Qt::Key_F27, QT_TRANSLATE_NOOP("GuiBase", "F27"), true},
    {Qt::Key_F28, QT_TRANSLATE_NOOP("GuiBase", "F28"), true},
    {Qt::Key_F29, QT_TRANSLATE_NOOP("GuiBase", "F29"), true},
    {Qt::Key_F30, QT_TRANSLATE_NOOP("GuiBase", "F30"), true},
    {Qt::Key_F31, QT_TRANSLATE_NOOP("GuiBase", "F31"), true},
    {Qt::Key_F32, QT_TRANSLATE_NOOP("GuiBase", "F32"), true},
    {Qt::Key_F33, QT_TRANSLATE_NOOP("GuiBase", "F33"), true},
    {Qt::Key_F34, QT_TRANSLATE_NOOP("GuiBase", "F34"), true},
    {Qt::Key_F35, QT_TRANSLATE_NOOP("GuiBase", "F35"), true},
    {Qt::Key_Super_L, "Super_L", false},
    {Qt::Key_Super_R, "Super_R", false},
    {Qt::Key_Menu, QT_TRANSLATE_NOOP("GuiBase", "Menu"), true},
    {Qt::Key_Hyper_L, "Hyper_L", false},
    {Qt::Key_Hyper_R, "Hyper_R", false},
    {Qt::Key_Help, QT_TRANSLATE_NOOP("GuiBase", "Help"), true},
    {Qt::Key_Space, QT_TRANSLATE_NOOP("GuiBase", "Space"), true},
    {Qt::Key_Exclam, QT_TRANSLATE_NOOP("GuiBase", "Exclam"), true},
    {Qt::Key_QuoteDbl, QT_TRANSLATE_NOOP("GuiBase", "QuoteDbl"), true},
    {Qt::Key_NumberSign, QT_TRANSLATE_NOOP("GuiBase", "NumberSign"), true},
    {Qt::Key_Dollar, QT_TRANSLATE_NOOP("GuiBase", "Dollar"), true},
    {Qt::Key_Percent, QT_TRANSLATE_NOOP("GuiBase", "Percent"), true},
    {Qt::Key_Ampersand, QT_TRANSLATE_NOOP("GuiBase", "Ampersand"), true},
    {Qt::Key_Apostrophe, QT_TRANSLATE_NOOP("GuiBase", "Apostrophe"), true},
    {Qt::Key_ParenLeft, "ParenLeft", false},
    {Qt::Key_ParenRight, "ParenRight", false},
    {Qt::Key_Asterisk, "Asterisk", false},
    {Qt::Key_Plus, QT_TRANSLATE_NOOP("GuiBase", "Plus"), true},
    {Qt::Key_Comma, QT_TRANSLATE_NOOP("GuiBase", "Comma"), true},
    {Qt::Key_Minus, QT_TRANSLATE_NOOP("GuiBase", "Minus"), true},
    {Qt::Key_Period, QT_TRANSLATE_NOOP("GuiBase", "Period"), true},
    {Qt::Key_Slash, QT_TRANSLATE_NOOP("GuiBase", "Slash"), true},
    {Qt::Key_0, QT_TRANSLATE_NOOP("GuiBase", "0"), true},
    {Qt::Key_1, QT_TRANSLATE_NOOP("GuiBase", "1"), true},
    {Qt::Key_2, QT_TRANSLATE_NOOP("GuiBase", "2"), true},
    {Qt::Key_3, QT_TRANSLATE_NOOP("GuiBase", "3"), true},
    {Qt::Key_4, QT_TRANSLATE_NOOP("GuiBase", "4"), true},
    {Qt::Key_5, QT_TRANSLATE_NOOP("GuiBase", "5"), true},
    {Qt::Key_6, QT_TRANSLATE_NOOP("GuiBase", "6"), true},
    {Qt::Key_7, QT_TRANSLATE_NOOP("GuiBase", "7"), true},
    {Qt::Key_8, QT_TRANSLATE_NOOP("GuiBase", "8"), true},
    {Qt::Key_9, QT_TRANSLATE_NOOP("GuiBase", "9"), true},
    {Qt::Key_Colon, QT_TRANSLATE_NOOP("GuiBase", "Colon"), true},
    {Qt::Key_Semicolon, QT_TRANSLATE_NOOP("GuiBase", "Semicolon"), true},
    {Qt::Key_Less, QT_TRANSLATE_NOOP("GuiBase", "Less"), true},
    {Qt::Key_Equal, QT_TRANSLATE_NOOP("GuiBase", "Equal"), true},
    {Qt::Key_Greater, QT_TRANSLATE_NOOP("GuiBase", "Greater"), true},
    {Qt::Key_Question, QT_TRANSLATE_NOOP("GuiBase", "Question"), true},
    {Qt::Key_At, QT_TRANSLATE_NOOP("GuiBase", "At"), true},
    {Qt::Key_A, QT_TRANSLATE_NOOP("GuiBase", "A"), true},
    {Qt::Key_B, QT_TRANSLATE_NOOP("GuiBase", "B"), true},
    {Qt::Key_C, QT_TRANSLATE_NOOP("GuiBase", "C"), true},
    {Qt::Key_D, QT_TRANSLATE_NOOP("GuiBase", "D"), true},
    {Qt::Key_E, QT_TRANSLATE_NOOP("GuiBase", "E"), true},
    {Qt::Key_F, QT_TRANSLATE_NOOP("GuiBase", "F"), true},
    {Qt::Key_G, QT_TRANSLATE_NOOP("GuiBase", "G"), true},
    {Qt::Key_H, QT_TRANSLATE_NOOP("GuiBase", "H"), true},
    {Qt::Key_I, QT_TRANSLATE_NOOP("GuiBase", "I"), true},
    {Qt::Key_J, QT_TRANSLATE_NOOP("GuiBase", "J"), true},
    {Qt::Key_K, QT_TRANSLATE_NOOP("GuiBase", "K"), true},
    {Qt::Key_L, QT_TRANSLATE_NOOP("GuiBase", "L"), true},
    {Qt::Key_M, QT_TRANSLATE_NOOP("GuiBase", "M"), true},
    {Qt::Key_N, QT_TRANSLATE_NOOP("GuiBase", "N"), true},
    {Qt::Key_O, QT_TRANSLATE_NOOP("GuiBase", "O"), true},
    {Qt::Key_P, QT_TRANSLATE_NOOP("GuiBase", "P"), true},
    {Qt::Key_Q, QT_TRANSLATE_NOOP("GuiBase", "Q"), true},
    {Qt::Key_R, QT_TRANSLATE_NOOP("GuiBase", "R"), true},
    {Qt::Key_S, QT_TRANSLATE_NOOP("GuiBase", "S"), true},
    {Qt::Key_T, QT_TRANSLATE_NOOP("GuiBase", "T"), true},
    {Qt::Key_U, QT_TRANSLATE_NOOP("GuiBase", "U"), true},
    {Qt::Key_V, QT_TRANSLATE_NOOP("GuiBase", "V"), true},
    {Qt::Key_W, QT_TRANSLATE_NOOP("GuiBase", "W"), true},
    {Qt::Key_X, QT_TRANSLATE_NOOP("GuiBase", "X"), true},
    {Qt::Key_Y, QT_TRANSLATE_NOOP("GuiBase", "Y"), true},
    {Qt::Key_Z, QT_TRANSLATE_NOOP("GuiBase", "Z"), true},
    {Qt::Key_BracketLeft, QT_TRANSLATE_NOOP("GuiBase", "BracketLeft"), true},
    {Qt::Key_Backslash, QT_TRANSLATE_NOOP("GuiBase", "Backslash"), true},
    {Qt::Key_BracketRight, QT_TRANSLATE_NOOP("GuiBase", "BracketRight"), true},
    {Qt::Key_AsciiCircum, QT_TRANSLATE_NOOP("GuiBase", "AsciiCircum"), true},
    {Qt::Key_Underscore, QT_TRANSLATE_NOOP("GuiBase", "Underscore"), true},
    {Qt::Key_QuoteLeft, QT_TRANSLATE_NOOP("GuiBase", "QuoteLeft"), true},
    {Qt::Key_BraceLeft, QT_TRANSLATE_NOOP("GuiBase", "BraceLeft"), true},
    {Qt::Key_Bar, QT_TRANSLATE_NOOP("GuiBase", "Bar"), true},
    {Qt::Key_BraceRight, QT_TRANSLATE_NOOP("GuiBase", "BraceRight"), true},
    {Qt::Key_AsciiTilde, QT_TRANSLATE_NOOP("GuiBase", "AsciiTilde"), true},
    {Qt::Key_nobreakspace, "nobreakspace", false},
    {Qt::Key_exclamdown, "exclamdown", false},
    {Qt::Key_cent, "cent", false},
    {Qt::Key_sterling, "sterling", false},
    {Qt::Key_currency, "currency", false},
    {Qt::Key_yen, "yen", false},
    {Qt::Key_brokenbar, "brokenbar", false},
    {Qt::Key_section, "section", false},
    {Qt::Key_diaeresis, "diaeresis", false},
    {Qt::Key_copyright, "copyright", false},
    {Qt::Key_ordfeminine, "ordfeminine", false},
    {Qt::Key_guillemotleft, "guillemotleft", false},
    {Qt::Key_notsign, "notsign", false},
    {Qt::Key_hyphen, "hyphen", false},
    {Qt::Key_registered, "registered", false},
    {Qt::Key_macron, "macron", false},
    {Qt::Key_degree, "degree", false},
    {Qt::Key_plusminus, "plusminus", false},
    {Qt::Key_twosuperior, "twosuperior", false},
    {Qt::Key_threesuperior, "threesuperior", false},
    {Qt::Key_acute, "acute", false},
    {Qt::Key_mu, "mu", false},
    {Qt::Key_paragraph, "paragraph", false},
    {Qt::Key_periodcentered, "periodcentered", false},
    {Qt::Key_cedilla, "cedilla", false},
    {Qt::Key_onesuperior, "onesuperior", false},
    {Qt::Key_masculine, "masculine", false},
    {Qt::Key_guillemotright, "guillemotright", false},
    {Qt::Key_onequarter, "onequarter", false},
    {Qt::Key_onehalf, "onehalf", false},
    {Qt::Key_threequarters, "threequarters", false},
    {Qt::Key_questiondown, "questiondown", false},
    {Qt::Key_Agrave, "Agrave", false},
    {Qt::Key_Aacute, "Aacute", false},
    {Qt::Key_Acircumflex, "Acircumflex", false},
    {Qt::Key_Atilde, "Atilde", false},
    {Qt::Key_Adiaeresis, "Adiaeresis", false},
    {Qt::Key_Aring, "Aring", false},
    {Qt::Key_AE, "AE", false},
    {Qt::Key_Ccedilla, "Ccedilla", false},
    {Qt::Key_Egrave, "Egrave", false},
    {Qt::Key_Eacute, "Eacute", false},
    {Qt::Key_Ecircumflex, "Ecircumflex", false},
    {Qt::Key_Ediaeresis, "Ediaeresis", false},
    {Qt::Key_Igrave, "Igrave", false},
    {Qt::Key_Iacute, "Iacute", false},
    {Qt::Key_Icircumflex, "Icircumflex", false},
    {Qt::Key_Idiaeresis, "Idiaeresis", false},
    {Qt::Key_ETH, "ETH", false},
    {Qt::Key_Ntilde, "Ntilde", false},
    {Qt::Key_Ograve, "Ograve", false},
    {Qt::Key_Oacute, "Oacute", false},
    {Qt::Key_Ocircumflex, "Ocircumflex", false},
    {Qt::Key_Otilde, "Otilde", false},
    {Qt::Key_Odiaeresis, "Odiaeresis", false},
    {Qt::Key_multiply, "multiply", false},
    {Qt::Key_Ooblique, "Ooblique", false},
    {Qt::Key_Ugrave, "Ugrave", false},
    {Qt::Key_Uacute, "Uacute", false},
    {Qt::Key_Ucircumflex, "Ucircumflex", false},
    {Qt::Key_Udiaeresis, "Udiaeresis", false},
    {Qt::Key_Yacute, "Yacute", false},
    {Qt::Key_THORN, "THORN", false},
    {Qt::Key_ssharp, "ssharp", false},
    {Qt::Key(224), "agrave", false},
    {Qt::Key(225), "aacute", false},
    {Qt::Key(226), "acircumflex", false},
    {Qt::Key(227), "atilde", false},
    {Qt::Key(228), "adiaeresis", false},
    {Qt::Key(229), "aring", false},
    {Qt::Key(230), "ae", false},
    {Qt::Key(231), "ccedilla", false},
    {Qt::Key(232), "egrave", false},
    {Qt::Key(233), "eacute", false},
    {Qt::Key(234), "ecircumflex", false},
    {Qt::Key(235), "ediaeresis", false},
    {Qt::Key(236), "igrave", false},
    {Qt::Key(237), "iacute", false},
    {Qt::Key(238), "icircumflex", false},
    {Qt::Key(239), "idiaeresis", false},
    {Qt::Key(240), "eth", false},
    {Qt::Key(241), "ntilde", false},
    {Qt::Key(242), "ograve", false},
    {Qt::Key(243), "oacute", false},
    {Qt::Key(244), "ocircumflex", false},
    {Qt::Key(245), "otilde", false},
    {Qt::Key(246), "odiaeresis", false},
    {Qt::Key(248), "oslash", false},
    {Qt::Key(249), "ugrave", false},
    {Qt::Key(250), "uacute", false},
    {Qt::Key(251), "ucircumflex", false},
    {Qt::Key(252), "udiaeresis", false},
    {Qt::Key(253), "yacute", false},
    {Qt::Key(254), "thorn", false},
    {Qt::Key_ydiaeresis, "ydiaeresis", false},
};
// clang-format on

const NamedKey* rowOf(Qt::Key key)
{
    const auto* row = std::find_if(std::begin(namedKeys), std::end(namedKeys),
                                   [key](const NamedKey& named) { return named.key == key; });
    return row != std::end(namedKeys) ? row : nullptr;
}

} // namespace

QString KeyNames::displayName(Qt::Key key)
{
    const NamedKey* row = rowOf(key);
    return row != nullptr ? row->display() : QCoreApplication::translate("GuiBase", "unknown");
}

bool KeyNames::hasName(Qt::Key key)
{
    return rowOf(key) != nullptr;
}

std::optional<Qt::Key> KeyNames::keyOf(const QString& text)
{
    const QString name = text.trimmed();
    const auto find = [&name](Qt::CaseSensitivity sensitivity) {
        return std::find_if(std::begin(namedKeys), std::end(namedKeys), [&](const NamedKey& named) {
            return name.compare(named.display(), sensitivity) == 0 ||
                   name.compare(QLatin1String(named.name), sensitivity) == 0;
        });
    };
    // "Agrave" and "agrave" are two keys; "f5" and "F5" are one.
    const auto* row = find(Qt::CaseSensitive);
    if (row == std::end(namedKeys))
        row = find(Qt::CaseInsensitive);
    if (row != std::end(namedKeys))
        return row->key;
    // What the key types, as in "+" for Plus; letters come in the case of their key.
    if (name.size() == 1) {
        const Qt::Key typed = Qt::Key(name.at(0).toUpper().unicode());
        if (hasName(typed))
            return typed;
    }
    return std::nullopt;
}

bool KeyNames::isModifier(Qt::Key key)
{
    constexpr std::array modifiers{Qt::Key_Shift,   Qt::Key_Control,    Qt::Key_Meta,
                                   Qt::Key_Alt,     Qt::Key_AltGr,      Qt::Key_CapsLock,
                                   Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Super_L,
                                   Qt::Key_Super_R, Qt::Key_Hyper_L,    Qt::Key_Hyper_R};
    return std::find(modifiers.begin(), modifiers.end(), key) != modifiers.end();
}

QStringList KeyNames::displayNames()
{
    QStringList names;
    for (const NamedKey& named : namedKeys)
        names << named.display();
    return names;
}
