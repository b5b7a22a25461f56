// SPDX-License-Identifier: MIT
#include "standardnotification.h"

#include <guibase/colors/colorcontrast.h>

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>

namespace {

constexpr QSize basicSize(400, 100);
constexpr qsizetype maximumTextLength = 1000;
constexpr int maximumTitleLines = 3;
constexpr int maximumTextLines = 15;
constexpr int maximumIconSize = 128;
constexpr int lighterPercent = 150;

} // namespace

class StandardNotificationPrivate
{
public:
    explicit StandardNotificationPrivate(StandardNotification& owner)
        : popup(owner)
        , icon(new QLabel(&owner))
        , title(new QLabel(&owner))
        , text(new QLabel(&owner))
    {}

    /// Wraps the text, and shows no more than so many lines; a long word does not widen the panel.
    static void bound(QLabel& label, int lines)
    {
        label.ensurePolished();
        label.setWordWrap(true);
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
        label.setMinimumWidth(1);
        label.setMaximumHeight(lines * label.fontMetrics().lineSpacing());
    }
    /// Arranges the labels once, and adapts the size to what they hold now.
    void arrange()
    {
        if (layout == nullptr)
            makeLayout();
        popup.ensurePolished();
        const int width = std::max(basicSize.width(), layout->minimumSize().width());
        const int height =
            std::max(layout->sizeHint().height(), layout->totalHeightForWidth(width));
        popup.resize(width, std::max(basicSize.height(), height));
    }
    void makeLayout()
    {
        popup.resize(basicSize);
        layout = new QGridLayout(&popup);
        layout->addWidget(icon, 0, 0, 3, 1);
        layout->addWidget(title, 0, 1);
        layout->addWidget(text, 1, 1);
        layout->addWidget(new QWidget(&popup), 2, 1);
        layout->setColumnStretch(1, 1);
        layout->setRowStretch(2, 1);
        title->setStyleSheet(QStringLiteral("font-size: 12pt; font-weight: bold;"));
        title->setTextFormat(Qt::PlainText);
        bound(*title, maximumTitleLines);
        bound(*text, maximumTextLines);
        text->setOpenExternalLinks(false);
    }

    StandardNotification& popup;
    QLabel* icon;
    QLabel* title;
    QLabel* text;
    QString wholeText;
    QGridLayout* layout = nullptr;
    QPointer<QDialogButtonBox> buttonBox;
    QColor color;
};

StandardNotification::StandardNotification(QWidget* parent)
    : QWidget(parent, Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus)
    , d(std::make_unique<StandardNotificationPrivate>(*this))
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setColor(defaultColor());
    d->arrange();
}

StandardNotification::~StandardNotification() = default;

QColor StandardNotification::defaultColor()
{
    return QColor(255, 255, 180, 255);
}

QColor StandardNotification::color() const
{
    return d->color;
}

void StandardNotification::setColor(const QColor& color)
{
    d->color = color.isValid() ? color : defaultColor();
    const QColor end = d->color.lighter(lighterPercent);
    setStyleSheet(QStringLiteral("StandardNotification { background: qlineargradient(x1: 0, y1: 0, "
                                 "x2: 1, y2: 1, stop:0 %1, stop:1 %2); border: 1px solid black; }")
                      .arg(d->color.name(), end.name()));
    const QColor readable = ColorContrast::blackOrWhiteOn({d->color, end});
    for (QLabel* label : {d->title, d->text}) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, readable);
        label->setPalette(palette);
    }
}

void StandardNotification::setIcon(const QPixmap& icon)
{
    const QSizeF size = icon.deviceIndependentSize();
    const bool isLarge = std::max(size.width(), size.height()) > maximumIconSize;
    const int side = static_cast<int>(maximumIconSize * icon.devicePixelRatio());
    const QPixmap fitting =
        isLarge ? icon.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation) : icon;
    d->icon->setPixmap(fitting);
    setWindowIcon(fitting);
    d->arrange();
}

QString StandardNotification::title() const
{
    return d->title->text();
}

void StandardNotification::setTitle(const QString& title)
{
    setWindowTitle(title);
    setAccessibleName(title);
    d->title->setText(title.left(maximumTextLength));
    d->arrange();
}

QString StandardNotification::text() const
{
    return d->wholeText;
}

void StandardNotification::setText(const QString& text)
{
    d->wholeText = text;
    const QString plain =
        Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
    setAccessibleDescription(plain);
    // Cut, rich text would lose the ends of its tags.
    const bool isLong = text.size() > maximumTextLength;
    d->text->setTextFormat(isLong ? Qt::PlainText : Qt::AutoText);
    if (plain.size() > maximumTextLength)
        d->text->setText(plain.left(maximumTextLength) + QChar(0x2026));
    else
        d->text->setText(isLong ? plain : text);
    d->arrange();
}

QDialogButtonBox::StandardButtons StandardNotification::buttons() const
{
    return d->buttonBox != nullptr ? d->buttonBox->standardButtons()
                                   : QDialogButtonBox::StandardButtons();
}

void StandardNotification::setButtons(QDialogButtonBox::StandardButtons buttons)
{
    delete d->buttonBox;
    d->buttonBox = new QDialogButtonBox(buttons, Qt::Horizontal, this);
    connect(d->buttonBox, &QDialogButtonBox::accepted, this, &StandardNotification::accepted);
    connect(d->buttonBox, &QDialogButtonBox::rejected, this, &StandardNotification::rejected);
    connect(d->buttonBox, &QDialogButtonBox::clicked, this, &StandardNotification::onButtonClicked);
    d->layout->addWidget(d->buttonBox, 3, 1);
    d->arrange();
}

void StandardNotification::onButtonClicked(QAbstractButton* button)
{
    const QPointer<StandardNotification> guard(this);
    Q_EMIT clicked(d->buttonBox->standardButton(button));
    if (guard != nullptr)
        close();
}
