// SPDX-License-Identifier: MIT
#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorsetbuiltin.h>
#include <guibase/colors/colorsetfactory_p.h>
#include <guibase/colors/colorsetfile_p.h>
#include <guibase/colors/editor/colorsctrl.h>
#include <guibase/services/guibase.h>

#include <jtbase/errorhandler.h>

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QSignalBlocker>

#include <algorithm>
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

} // namespace

ColorSet& ColorSet::Instance()
{
    static ColorSet instance;
    return instance;
}

ColorSet::ColorSet()
    : m_directory(QDir::currentPath())
    , m_knownFiles{factoryName()}
    , m_propertyPagePath(tr("Assignments"))
{
    slotRestoreFactoryColors();
    Backup();
}

ColorSet::~ColorSet() = default;

const QColor& ColorSet::GetColor(ECOLOR slot) const
{
    if (static_cast<unsigned>(slot) < static_cast<unsigned>(slotCount)) [[likely]] {
        if (const ColorDefinition* definition = m_slots[position(slot)]) [[likely]]
            return definition->GetColor();
    }
    return fallbackColor(slot);
}

/// Two colours rather than one that changes: a reference that someone holds keeps its colour.
const QColor& ColorSet::fallbackColor(int slot) const
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

const ColorDefinition* ColorSet::GetColorDefinition(ECOLOR slot) const
{
    return isSlot(slot) ? m_slots[position(slot)] : nullptr;
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
    m_slots[position(slot)] = definition;
    m_dirty = true;
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

ColorSetCodec::Ids ColorSet::ids() const
{
    ColorSetCodec::Ids ids{};
    std::transform(m_slots.begin(), m_slots.end(), ids.begin(),
                   [](const ColorDefinition* slot) { return slot ? slot->GetId() : 0; });
    return ids;
}

void ColorSet::assign(const ColorSetCodec::Ids& ids)
{
    std::transform(ids.begin(), ids.end(), m_slots.begin(),
                   [](qint32 id) { return Colors::Instance().GetColorDefinition(id); });
}

void ColorSet::Backup()
{
    m_backupIds = ids();
    m_backupFileName = m_fileName;
}

void ColorSet::Restore()
{
    assign(m_backupIds);
    m_fileName = m_backupFileName;
    announceChange();
}

void ColorSet::rememberFile(const QString& name)
{
    m_fileName = ColorSetFile::absoluteName(name);
    m_directory = QFileInfo(m_fileName).absolutePath();
    m_dirty = false;
}

void ColorSet::Save(QWidget* parent, const QString& name)
{
    const QPointer<QWidget> dialogParent(parent); // may die while a dialog is open
    if (name.size() > 1)
        m_fileName = ColorSetFile::absoluteName(name);
    QString file = m_fileName;
    WriteResult result = ColorSetFile::write(file, ids());
    // A current file that cannot be opened is no error: the user has just not named one yet.
    bool isError = result == WriteResult::WriteFailed;
    while (result != WriteResult::Written) {
        if (isError && !ColorSetFile::ask(dialogParent, tr("File Error"),
                                          tr("Cannot open file for writing! Continue?")))
            return;
        file = ColorSetFile::chooseForSaving(dialogParent, tr("Save current ColorSet"));
        if (file.isEmpty())
            return;
        result = ColorSetFile::write(file, ids());
        isError = true;
    }
    rememberFile(file);
}

void ColorSet::Load(QWidget* parent, const QString& name)
{
    if (name == factoryName() || name == tr(factoryDefaultName)) {
        slotRestoreFactoryColors();
        return;
    }
    if (ColorSetFile::absoluteName(name) == m_fileName)
        return;
    const QPointer<QWidget> dialogParent(parent); // may die while a dialog is open
    if (m_dirty && ColorSetFile::ask(dialogParent, tr("Load ColorSet"),
                                     tr("Current ColorSet was changed. Do you want to save now?")))
        Save(dialogParent, QString());

    if (const auto builtIn = ColorSetBuiltIn::find(name)) {
        assign(builtIn->ids);
        m_fileName = QString::fromLatin1(builtIn->name);
        m_dirty = false;
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
    assign(*loaded);
    rememberFile(file);
    announceChange();
}

void ColorSet::Load(int index)
{
    if (index > 0 && index < m_knownFiles.size()) {
        // a copy: the list may be made anew while a dialog is open
        Load(nullptr, QString(m_knownFiles.at(index)));
    } else if (index == 0 && m_fileName != factoryName()) {
        slotRestoreFactoryColors();
        announceChange();
    }
}

bool ColorSet::LoadPrinterSet()
{
    const QFileInfoList files = colorSetFiles(m_directory);
    const auto found = std::find_if(files.begin(), files.end(), [](const QFileInfo& file) {
        return file.fileName().contains(QLatin1String("print"), Qt::CaseInsensitive);
    });
    if (found == files.end())
        return false;
    Load(nullptr, found->absoluteFilePath());
    return true;
}

QComboBox* ColorSet::GetColorSetsComboBox(QWidget* parent)
{
    auto* box = new QComboBox(parent);
    UpdateComboBox(box);
    return box;
}

void ColorSet::UpdateComboBox(QComboBox* box)
{
    m_knownFiles = QStringList{factoryName()};
    QStringList texts{tr(factoryDefaultName)};
    for (const QFileInfo& file : colorSetFiles(m_directory)) {
        m_knownFiles.append(file.absoluteFilePath());
        texts.append(file.fileName());
    }
    for (const char* builtIn : ColorSetBuiltIn::names()) {
        m_knownFiles.append(QString::fromLatin1(builtIn));
        texts.append(tr(builtIn));
    }
    if (!box)
        return;
    qsizetype current = m_knownFiles.indexOf(m_fileName);
    if (current < 0)
        current = m_knownFiles.indexOf(QFileInfo(m_fileName).absoluteFilePath());
    if (current >= 0 && m_dirty)
        texts[current] += QStringLiteral(" [changed]");
    const QSignalBlocker blocker(box);
    box->clear();
    box->addItems(texts);
    box->setCurrentIndex(static_cast<int>(current));
}

ColorsCtrl* ColorSet::makeEditor(QWidget* parent)
{
    m_editor = new ColorsCtrl(parent);
    return m_editor;
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
    if (m_editor)
        m_editor->slotAcceptChanges();
}

void ColorSet::slotRestoreFactoryColors()
{
    assign(ColorSetFactory::ids);
    m_fileName = factoryName();
    m_dirty = false;
}

void ColorSet::slotRestoreSystemColors()
{
    Colors::Instance().RestoreSystemColors();
    m_slots[position(Slot66)] = Colors::Instance().GetSystemColors().At(0);
    m_dirty = false;
}
