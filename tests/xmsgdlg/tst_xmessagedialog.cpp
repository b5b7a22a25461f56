// SPDX-License-Identifier: MIT
#include <xmsgdlg/xmessagedialog.h>

#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

#include <functional>

namespace {

class Store : public IMessageSuppressionStore
{
public:
    bool IsSuppressed(const QString& key) const override { return keys.contains(key); }
    void SetSuppressed(const QString& key, bool) override { keys << key; }
    QStringList keys;
};

} // namespace

class tst_XMessageDialog : public GuardedTest
{
    Q_OBJECT
    using Texts = TestRows<QString, QString>;

private Q_SLOTS:
    void showsTextsAsTheyAre_data()
    {
        const QString markup = QStringLiteral("<b>50 %1 &amp; \"more\"</b>\n<img src='x.png'>");
        Texts row;
        row("markup", markup, markup);
        row("empty", "", "");
        row("many lines", QStringLiteral("line\n").repeated(600), "");
        row("one long word", QString(100000, u'w'), QString(100000, u'd'));
    }
    void showsTextsAsTheyAre()
    {
        const auto& [text, details] = Texts::fetch();
        const UserMessage message{MessageSeverity::Warning, QStringLiteral("Title [*] %1"), text,
                                  details, QString()};
        const auto drive = [&](QDialog& dialog) {
            auto* label = dialog.findChild<QLabel*>(QStringLiteral("text"));
            auto* edit = dialog.findChild<QPlainTextEdit*>(QStringLiteral("details"));
            constexpr int limit = XMessageDialog::maximumTextLength;
            const bool isCut = text.size() > limit;
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QCOMPARE(label->text().left(limit), text.left(limit));
            QCOMPARE(edit != nullptr, isCut || !details.isEmpty());
            if (edit != nullptr) {
                dialog.findChild<QPushButton*>(QStringLiteral("showDetails"))->click();
                QVERIFY(edit->isVisible());
                QVERIFY(!isCut || edit->toPlainText().startsWith(text));
                QVERIFY(edit->toPlainText().endsWith(details));
            }
            const QSize screen = dialog.screen()->availableGeometry().size();
            QCOMPARE(dialog.size().boundedTo(screen), dialog.size());
            QCOMPARE(dialog.findChild<QCheckBox*>(), nullptr);
            dialog.findChild<QPushButton*>(QStringLiteral("copy"))->click();
            const QString copied = QGuiApplication::clipboard()->text();
            QVERIFY(copied.startsWith(QStringLiteral("Warning: Title [*] %1")));
            QVERIFY(copied.contains(text) && copied.endsWith(details));
        };
        QVERIFY(show(message, drive));
    }
    void suppression()
    {
        Store store;
        m_messages->SetSettings({QStringLiteral("Receiver"), &store});
        UserMessage message{MessageSeverity::Critical, {}, QStringLiteral("text"), {}, {}};
        const auto check = [&](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Receiver"));
            auto* box = dialog.findChild<QCheckBox*>();
            QCOMPARE(box == nullptr, message.key.isEmpty());
            if (box != nullptr)
                box->setChecked(true);
        };
        QVERIFY(show(message, check));
        message.key = QStringLiteral("key");
        QVERIFY(show(message, [](QDialog&) {}));
        QVERIFY(show(message, check));
        QCOMPARE(store.keys, QStringList(message.key));
        QVERIFY(!m_messages->Show(message, nullptr));
        m_messages->SetSettings({}); // without a store nothing is offered
        QVERIFY(show(message,
                     [](QDialog& dialog) { QCOMPARE(dialog.findChild<QCheckBox*>(), nullptr); }));
    }
    void survivesTheEndOfItsParents()
    {
        const auto end = [this](QDialog&) {
            m_messages.reset();
            m_parent.reset();
        };
        Store store;
        m_messages->SetSettings({QString(), &store});
        QVERIFY(
            show({MessageSeverity::Information, {}, QString(), {}, QStringLiteral("key")}, end));
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

private:
    /// Shows the message and runs `drive` in the open dialog, which is closed afterwards; false
    /// without.
    bool show(const UserMessage& message, const std::function<void(QDialog&)>& drive)
    {
        const ModalDialogCloser closer(drive);
        return m_messages->Show(message, m_parent.get()) && closer.hasSeenDialog();
    }

    std::unique_ptr<XMessageDialog> m_messages = std::make_unique<XMessageDialog>();
    std::unique_ptr<QWidget> m_parent = std::make_unique<QWidget>();
};

QTEST_MAIN(tst_XMessageDialog)
#include "tst_xmessagedialog.moc"
