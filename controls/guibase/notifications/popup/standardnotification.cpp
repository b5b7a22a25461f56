// SPDX-License-Identifier: MIT
#include "standardnotification.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace {

constexpr QSize basicSize(400, 100);
constexpr qsizetype maximumTextLength = 1000;
constexpr int lighterPercent = 150;

/// The relative luminance by which the web's accessibility guidelines measure contrast.
double luminanceOf(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// Black or white, by the weaker of the contrasts with both ends of the tint.
QColor readableOn(const QColor& first, const QColor& second)
{
    const auto [dark, light] = std::minmax({luminanceOf(first), luminanceOf(second)});
    const double withBlack = (dark + 0.05) / 0.05;
    const double withWhite = 1.05 / (light + 0.05);
    return withBlack >= withWhite ? QColor(Qt::black) : QColor(Qt::white);
}

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
        title->setWordWrap(true);
        text->setWordWrap(true);
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
    const QColor readable = readableOn(d->color, end);
    for (QLabel* label : {d->title, d->text}) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, readable);
        label->setPalette(palette);
    }
}

void StandardNotification::setIcon(const QPixmap& icon)
{
    d->icon->setPixmap(icon);
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
    setAccessibleDescription(text);
    const bool isLong = text.size() > maximumTextLength;
    d->text->setText(isLong ? text.left(maximumTextLength) + QChar(0x2026) : text);
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
