// SPDX-License-Identifier: MIT
#include "colorset.h"

#include "colors.h"
#include "colorsetbuiltin.h"
#include "colorsetcodec.h"
#include "colorsetfactory_p.h"
#include "colorsetfile_p.h"

#include <guibase/colors/editor/colorsctrl.h>
#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <optional>

using ColorSetFile::WriteResult;

namespace {

constexpr char sourceModule[] = "controls/guibase/colorset";
constexpr quint32 traceBit = ErrorHandler::TraceGuiBase;

bool isSlot(int index)
{
    return index >= 0 && index < IColorBase::slotCount;
}

std::size_t position(int index)
{
    return static_cast<std::size_t>(index);
}

QString factoryName()
{
    return QString::fromLatin1(ColorSet::factoryDefaultName);
}

QFileInfoList colorSetFiles(const QString& directory)
{
    return QDir(directory).entryInfoList({QStringLiteral("*.cst")}, QDir::Files,
                                         QDir::Name | QDir::IgnoreCase);
}

void announceChange()
{
    GuiBase::Instance().emit_signalColorsChanged();
}

/// Two colours rather than one that changes: a reference that someone holds keeps its colour.
const QColor& fallbackColor(int slot)
{
    static const QColor outOfRange(Qt::red);
    static const QColor empty(Qt::cyan);
    const bool exists = isSlot(slot);
    if (ErrorHandler::IsTraceEnabled(traceBit)) {
        const QString text =
            exists ? QStringLiteral("ColorSet::GetColor(%1) no color found at this position!")
                   : QStringLiteral("ColorSet::GetColor(%1) called with an index out of range");
        ErrorHandler::Trace(traceBit, sourceModule, __LINE__, text.arg(slot));
    }
    return exists ? empty : outOfRange;
}

} // namespace

struct ColorSet::Private
{
    ColorSetCodec::Ids ids() const;
    void assign(const ColorSetCodec::Ids& ids);
    /// The set is the one of this file now.
    void rememberFile(const QString& name);

    quint32 showInDialog = 1;
    bool dirty = false;
    QString fileName;
    QString backupFileName;
    QString directory = QDir::currentPath();
    QStringList knownFiles{factoryName()};
    ColorSetCodec::Ids backupIds{};
    std::array<const ColorDefinition*, slotCount> slotDefinitions{};
    QPointer<ColorsCtrl> editor;
};

ColorSetCodec::Ids ColorSet::Private::ids() const
{
    ColorSetCodec::Ids ids{};
    std::transform(slotDefinitions.begin(), slotDefinitions.end(), ids.begin(),
                   [](const ColorDefinition* slot) { return slot ? slot->GetId() : 0; });
    return ids;
}

void ColorSet::Private::assign(const ColorSetCodec::Ids& ids)
{
    std::transform(ids.begin(), ids.end(), slotDefinitions.begin(),
                   [](qint32 id) { return Colors::Instance().GetColorDefinition(id); });
}

void ColorSet::Private::rememberFile(const QString& name)
{
    fileName = ColorSetFile::absoluteName(name);
    directory = QFileInfo(fileName).absolutePath();
    dirty = false;
}

ColorSet& ColorSet::Instance()
{
    static ColorSet instance;
    return instance;
}

ColorSet::ColorSet()
    : d(std::make_unique<Private>())
{
    slotRestoreFactoryColors();
    Backup();
}

ColorSet::~ColorSet() = default;

const QColor& ColorSet::GetColor(ECOLOR slot) const
{
    if (static_cast<unsigned>(slot) < static_cast<unsigned>(slotCount)) [[likely]] {
        if (const ColorDefinition* definition = d->slotDefinitions[position(slot)]) [[likely]]
            return definition->GetColor();
    }
    return fallbackColor(slot);
}

const ColorDefinition* ColorSet::GetColorDefinition(ECOLOR slot) const
{
    return isSlot(slot) ? d->slotDefinitions[position(slot)] : nullptr;
}

void ColorSet::SetColor(ECOLOR slot, const QColor& color, bool emitSignal)
{
    const ColorDefinition* definition = Colors::Instance().GetColors().Find(color);
    if (!definition)
        definition = Colors::Instance().GetUserColors().Find(color);
    setDefinition(slot, definition, emitSignal);
}

void ColorSet::SetColor(ECOLOR slot, const ColorDefinition* definition, bool emitSignal)
{
    const ColorDefinition* former = GetColorDefinition(slot);
    const bool same = former && definition ? *former == *definition : former == definition;
    if (!same)
        setDefinition(slot, definition, emitSignal);
}

void ColorSet::setDefinition(ECOLOR slot, const ColorDefinition* definition, bool emitSignal)
{
    if (!isSlot(slot))
        return;
    d->slotDefinitions[position(slot)] = definition;
    d->dirty = true;
    if (emitSignal)
        announceChange();
}

IColorBase::ECOLOR ColorSet::Type2Index(char letter)
{
    int code = static_cast<signed char>(letter);
    if (code <= 'Z')
        code += 'a' - 'A';
    return static_cast<ECOLOR>(code - 'a');
}

char ColorSet::Index2Type(ECOLOR index)
{
    return static_cast<char>(static_cast<unsigned>(index) + 'a');
}

void ColorSet::Backup()
{
    d->backupIds = d->ids();
    d->backupFileName = d->fileName;
}

void ColorSet::Restore()
{
    d->assign(d->backupIds);
    d->fileName = d->backupFileName;
    announceChange();
}

void ColorSet::Save(QWidget* parent, const QString& name)
{
    const QPointer<QWidget> dialogParent(parent); // may die while a dialog is open
    if (name.size() > 1)
        d->fileName = ColorSetFile::absoluteName(name);
    QString file = d->fileName;
    WriteResult result = ColorSetFile::write(file, d->ids());
    // A current file that cannot be opened is no error: the user has just not named one yet.
    bool isError = result == WriteResult::WriteFailed;
    while (result != WriteResult::Written) {
        if (isError && !ColorSetFile::ask(dialogParent, tr("File Error"),
                                          tr("Cannot open file for writing! Continue?")))
            return;
        file = ColorSetFile::chooseForSaving(dialogParent, tr("Save current ColorSet"));
        if (file.isEmpty())
            return;
        result = ColorSetFile::write(file, d->ids());
        isError = true;
    }
    d->rememberFile(file);
}

void ColorSet::Load(QWidget* parent, const QString& name)
{
    if (name == factoryName() || name == tr(factoryDefaultName)) {
        slotRestoreFactoryColors();
        return;
    }
    if (ColorSetFile::absoluteName(name) == d->fileName)
        return;
    const QPointer<QWidget> dialogParent(parent); // may die while a dialog is open
    if (d->dirty && ColorSetFile::ask(dialogParent, tr("Load ColorSet"),
                                      tr("Current ColorSet was changed. Do you want to save now?")))
        Save(dialogParent, QString());

    if (const auto builtIn = ColorSetBuiltIn::find(name)) {
        d->assign(builtIn->ids);
        d->fileName = QString::fromLatin1(builtIn->name);
        d->dirty = false;
        announceChange();
        return;
    }
    QString file = name;
    std::optional<ColorSetCodec::Ids> loaded;
    while (!loaded) {
        if (file.isEmpty())
            file = ColorSetFile::chooseForLoading(dialogParent, tr("Read ColorSet"));
        loaded = ColorSetFile::read(file);
        if (loaded)
            break;
        if (!ColorSetFile::ask(dialogParent, tr("File Error"),
                               tr("Cannot open Color Definition File! Continue?"))) {
            slotRestoreFactoryColors();
            return;
        }
        file.clear();
    }
    d->assign(*loaded);
    d->rememberFile(file);
    announceChange();
}

void ColorSet::Load(int index)
{
    if (index > 0 && index < d->knownFiles.size()) {
        // a copy: the list may be made anew while a dialog is open
        Load(nullptr, QString(d->knownFiles.at(index)));
    } else if (index == 0 && d->fileName != factoryName()) {
        slotRestoreFactoryColors();
        announceChange();
    }
}

bool ColorSet::LoadPrinterSet()
{
    const QFileInfoList files = colorSetFiles(d->directory);
    const auto found = std::find_if(files.begin(), files.end(), [](const QFileInfo& file) {
        return file.fileName().contains(QLatin1String("print"), Qt::CaseInsensitive);
    });
    if (found == files.end())
        return false;
    Load(nullptr, found->absoluteFilePath());
    return true;
}

const QString& ColorSet::GetName() const
{
    return d->fileName;
}

bool ColorSet::GetDirty() const
{
    return d->dirty;
}

void ColorSet::SetShowInDialog(quint32 mask)
{
    d->showInDialog = mask;
}

void ColorSet::AddShowInDialog(quint32 bits)
{
    d->showInDialog |= bits;
}

quint32 ColorSet::GetShowInDialog() const
{
    return d->showInDialog;
}

QString ColorSet::GetPropertyPagePath() const
{
    return tr("Assignments");
}

QComboBox* ColorSet::GetColorSetsComboBox(QWidget* parent)
{
    auto* box = new QComboBox(parent);
    UpdateComboBox(box);
    return box;
}

void ColorSet::UpdateComboBox(QComboBox* box)
{
    d->knownFiles = QStringList{factoryName()};
    QStringList texts{tr(factoryDefaultName)};
    for (const QFileInfo& file : colorSetFiles(d->directory)) {
        d->knownFiles.append(file.absoluteFilePath());
        texts.append(file.fileName());
    }
    for (const char* builtIn : ColorSetBuiltIn::names()) {
        d->knownFiles.append(QString::fromLatin1(builtIn));
        texts.append(tr(builtIn));
    }
    if (!box)
        return;
    qsizetype current = d->knownFiles.indexOf(d->fileName);
    if (current < 0)
        current = d->knownFiles.indexOf(QFileInfo(d->fileName).absoluteFilePath());
    if (current >= 0 && d->dirty)
        texts[current] = ColorSetBuiltIn::shownName(texts[current], true);
    const QSignalBlocker blocker(box);
    box->clear();
    box->addItems(texts);
    box->setCurrentIndex(static_cast<int>(current));
}

ColorsCtrl* ColorSet::makeEditor(QWidget* parent)
{
    d->editor = new ColorsCtrl(parent);
    return d->editor;
}

QWidget* ColorSet::GetPropertyPage(QWidget* parent, const char* name)
{
    ColorsCtrl* editor = makeEditor(parent);
    editor->setObjectName(QString::fromUtf8(name));
    return editor;
}

QWidget* ColorSet::GetCtrl(QWidget* parent)
{
    ColorsCtrl* editor = makeEditor(parent);
    // By text: the dialog is of a type that is not known here.
    if (parent != nullptr && parent->metaObject()->indexOfSignal("applyButtonPressed()") >= 0)
        connect(parent, SIGNAL(applyButtonPressed()), editor, SLOT(slotAcceptChanges()));
    return editor;
}

void ColorSet::slotAcceptPropertyChanges()
{
    if (d->editor)
        d->editor->slotAcceptChanges();
}

void ColorSet::slotRestoreFactoryColors()
{
    d->assign(ColorSetFactory::ids);
    d->fileName = factoryName();
    d->dirty = false;
}

void ColorSet::slotRestoreSystemColors()
{
    Colors::Instance().RestoreSystemColors();
    d->slotDefinitions[position(Slot66)] = Colors::Instance().GetSystemColors().At(0);
    d->dirty = false;
}
