// SPDX-License-Identifier: MIT
#include <xmsgdlg/xmessagedialog.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QLoggingCategory>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QThread>

namespace {

Q_LOGGING_CATEGORY(messageCategory, "trov.message", QtInfoMsg)

constexpr int maximumTitleLength = 200;
constexpr int textColumns = 48; // at least, so that the title fits in, too
constexpr int detailsColumns = 60;
constexpr int detailsLines = 12;
constexpr int detailsRow = 3; // of the layout

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(XMessageDialog)
};

QString severityName(MessageSeverity severity)
{
    switch (severity) {
    case MessageSeverity::Critical:
        return Texts::tr("Error", "Message severity");
    case MessageSeverity::Warning:
        return Texts::tr("Warning", "Message severity");
    case MessageSeverity::Information:
        break;
    }
    return Texts::tr("Information", "Message severity");
}

QStyle::StandardPixmap severityIcon(MessageSeverity severity)
{
    switch (severity) {
    case MessageSeverity::Critical:
        return QStyle::SP_MessageBoxCritical;
    case MessageSeverity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case MessageSeverity::Information:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

QString composeTitle(const QString& messageTitle, const QString& applicationName)
{
    QString title = messageTitle.left(maximumTitleLength).simplified();
    if (title.isEmpty())
        title = applicationName;
    else if (!applicationName.isEmpty())
        title = QStringLiteral("%1 - %2").arg(title, applicationName);
    // A window title takes "[*]" as the place of the mark for unsaved changes.
    return title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

void logMessage(const UserMessage& message)
{
    const QString text = XMessageDialog::FormatForClipboard(message);
    if (message.severity == MessageSeverity::Information)
        qCInfo(messageCategory).noquote() << text;
    else if (message.severity == MessageSeverity::Warning)
        qCWarning(messageCategory).noquote() << text;
    else
        qCCritical(messageCategory).noquote() << text;
}

class MessageDialog : public QDialog
{
public:
    MessageDialog(const UserMessage& message, const QString& applicationName,
                  bool offersSuppression, QWidget* parent);

    bool isSuppressionChosen() const { return m_suppress != nullptr && m_suppress->isChecked(); }

private:
    QWidget* makeText(const QString& text);
    QPlainTextEdit* makeDetails(const QString& details);
    QDialogButtonBox* makeButtons(const UserMessage& message, QPlainTextEdit* details);

    QCheckBox* m_suppress = nullptr;
};

MessageDialog::MessageDialog(const UserMessage& message, const QString& applicationName,
                             bool offersSuppression, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("XMessageDialog"));
    setWindowTitle(composeTitle(message.title, applicationName));
    setMaximumSize(screen()->availableGeometry().size() * 9 / 10);

    auto* layout = new QGridLayout(this);
    auto* icon = new QLabel(this);
    const int iconSize = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(
        style()->standardIcon(severityIcon(message.severity), nullptr, this).pixmap(iconSize));
    icon->setAccessibleName(severityName(message.severity));
    layout->addWidget(icon, 0, 0, Qt::AlignTop);

    QString text = message.text;
    QString details = message.details;
    if (text.size() > XMessageDialog::maximumTextLength) {
        details = details.isEmpty() ? text : text + QStringLiteral("\n\n") + details;
        text = text.left(XMessageDialog::maximumTextLength) + QChar(0x2026);
    }
    layout->addWidget(makeText(text), 0, 1);
    if (offersSuppression) {
        m_suppress = new QCheckBox(Texts::tr("Do not show this message again"), this);
        m_suppress->setObjectName(QStringLiteral("suppress"));
        layout->addWidget(m_suppress, 1, 1);
    }
    QPlainTextEdit* detailsEdit = details.isEmpty() ? nullptr : makeDetails(details);
    layout->addWidget(makeButtons(message, detailsEdit), 2, 0, 1, 2);
    if (detailsEdit != nullptr)
        layout->addWidget(detailsEdit, detailsRow, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);
}

QWidget* MessageDialog::makeText(const QString& text)
{
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("text"));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * textColumns);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    area->setWidget(label);
    return area;
}

QPlainTextEdit* MessageDialog::makeDetails(const QString& details)
{
    auto* edit = new QPlainTextEdit(this);
    edit->setObjectName(QStringLiteral("details"));
    edit->setReadOnly(true);
    edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    edit->setPlainText(details);
    const QFontMetrics metrics(edit->font());
    edit->setMinimumSize(metrics.averageCharWidth() * detailsColumns,
                         metrics.lineSpacing() * detailsLines);
    edit->hide();
    return edit;
}

QDialogButtonBox* MessageDialog::makeButtons(const UserMessage& message, QPlainTextEdit* details)
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);

    QPushButton* copy =
        box->addButton(Texts::tr("&Copy", "Message dialog"), QDialogButtonBox::ActionRole);
    copy->setObjectName(QStringLiteral("copy"));
    copy->setToolTip(Texts::tr("Copies the whole message to the clipboard"));
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QPushButton::clicked, this,
            [text = XMessageDialog::FormatForClipboard(message)] {
                QGuiApplication::clipboard()->setText(text);
            });

    if (details != nullptr) {
        QPushButton* show =
            box->addButton(Texts::tr("&Details", "Message dialog"), QDialogButtonBox::ActionRole);
        show->setObjectName(QStringLiteral("showDetails"));
        show->setCheckable(true);
        connect(show, &QPushButton::toggled, this, [this, details](bool visible) {
            details->setVisible(visible);
            // A hidden row that stretches would still take its share.
            if (auto* grid = qobject_cast<QGridLayout*>(layout()))
                grid->setRowStretch(detailsRow, visible ? 2 : 0);
            adjustSize();
        });
    }
    box->button(QDialogButtonBox::Ok)->setDefault(true);
    box->button(QDialogButtonBox::Ok)->setFocus();
    return box;
}

} // namespace

XMessageDialog::XMessageDialog() = default;
XMessageDialog::~XMessageDialog() = default;

MessageDlgSettings XMessageDialog::GetSettings() const
{
    return m_settings;
}

void XMessageDialog::SetSettings(const MessageDlgSettings& settings)
{
    m_settings = settings;
}

bool XMessageDialog::Show(const UserMessage& message, QWidget* parent)
{
    // The user may wait in front of the open dialog for long: this object may be replaced, the
    // parent destroyed. Nothing but these local copies is used afterwards.
    const QString key = message.key;
    IMessageSuppressionStore* const store = key.isEmpty() ? nullptr : m_settings.suppressionStore;
    if (store != nullptr && store->IsSuppressed(key))
        return false;
    auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (application == nullptr || QThread::currentThread() != application->thread()) {
        logMessage(message);
        return true;
    }
    const QString applicationName = m_settings.applicationName.isEmpty()
                                        ? QGuiApplication::applicationDisplayName()
                                        : m_settings.applicationName;
    const QPointer<MessageDialog> dialog =
        new MessageDialog(message, applicationName, store != nullptr, parent);
    dialog->exec();
    if (dialog.isNull())
        return true;
    if (store != nullptr && dialog->isSuppressionChosen())
        store->SetSuppressed(key, true);
    delete dialog.data();
    return true;
}

QString XMessageDialog::FormatForClipboard(const UserMessage& message)
{
    QStringList parts;
    parts << (message.title.isEmpty()
                  ? severityName(message.severity)
                  : QStringLiteral("%1: %2").arg(severityName(message.severity), message.title));
    if (!message.text.isEmpty())
        parts << message.text;
    if (!message.details.isEmpty())
        parts << message.details;
    return parts.join(QStringLiteral("\n\n"));
}
