// SPDX-License-Identifier: MIT
#include <xmsgdlg/xmessagedialog.h>

#include "support/testguard.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <set>

namespace {

class Store : public IMessageSuppressionStore
{
public:
    bool IsSuppressed(const QString& key) const override { return keys.contains(key); }
    void SetSuppressed(const QString& key, bool on) override
    {
        on ? void(keys.insert(key)) : void(keys.erase(key));
    }
    std::set<QString> keys;
};

} // namespace

class TestXMessageDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_guard = std::make_unique<TestGuard>(); }
    void cleanup()
    {
        QCOMPARE(m_guard->finish(), QString());
        m_guard.reset();
    }
    void showsTextsAsTheyAre_data();
    void showsTextsAsTheyAre();
    void suppression_data();
    void suppression();
    void survivesTheEndOfItsParents();

private:
    /// Shows the message and runs `drive` in the open dialog, which is closed afterwards.
    bool show(const UserMessage& message, const std::function<void(QDialog&)>& drive)
    {
        QTimer::singleShot(0, this, [drive] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            const QPointer<QDialog> guard = dialog;
            drive(*dialog);
            if (guard != nullptr)
                guard->reject();
        });
        return m_messages->Show(message, m_parent.get());
    }

    std::unique_ptr<TestGuard> m_guard;
    std::unique_ptr<XMessageDialog> m_messages = std::make_unique<XMessageDialog>();
    std::unique_ptr<QWidget> m_parent = std::make_unique<QWidget>();
};

void TestXMessageDialog::showsTextsAsTheyAre_data()
{
    const QString markup = QStringLiteral("<b>50 %1 &amp; \"more\"</b>\n<img src='x.png'>");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("details");
    QTest::newRow("markup") << markup << markup;
    QTest::newRow("no details") << markup << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("many lines") << QStringLiteral("line\n").repeated(600) << QString();
    QTest::newRow("many words") << QStringLiteral("word ").repeated(200000) << markup;
    QTest::newRow("one long word") << QString(100000, u'w') << QString(100000, u'd');
}

void TestXMessageDialog::showsTextsAsTheyAre()
{
    QFETCH(QString, text);
    QFETCH(QString, details);
    const UserMessage message{MessageSeverity::Warning, QStringLiteral("Title [*] %1"), text,
                              details, QString()};
    const auto drive = [&](QDialog& dialog) {
        auto* label = dialog.findChild<QLabel*>(QStringLiteral("text"));
        auto* edit = dialog.findChild<QPlainTextEdit*>(QStringLiteral("details"));
        const bool isCut = text.size() > XMessageDialog::maximumTextLength;
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QCOMPARE(label->text().left(XMessageDialog::maximumTextLength),
                 text.left(XMessageDialog::maximumTextLength));
        QCOMPARE(edit != nullptr, isCut || !details.isEmpty());
        if (edit != nullptr) {
            QVERIFY(!edit->isVisible());
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

void TestXMessageDialog::suppression_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("hasStore");
    QTest::addColumn<bool>("isOffered");
    QTest::newRow("key and store") << QStringLiteral("key") << true << true;
    QTest::newRow("no key") << QString() << true << false;
    QTest::newRow("no store") << QStringLiteral("key") << false << false;
}

void TestXMessageDialog::suppression()
{
    QFETCH(QString, key);
    QFETCH(bool, hasStore);
    QFETCH(bool, isOffered);
    Store store;
    m_messages->SetSettings({QStringLiteral("Receiver"), hasStore ? &store : nullptr});
    const UserMessage message{MessageSeverity::Critical, QString(), QStringLiteral("text"),
                              QString(), key};
    const auto check = [&](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Receiver"));
        auto* box = dialog.findChild<QCheckBox*>();
        QCOMPARE(box != nullptr, isOffered);
        if (box != nullptr)
            box->setChecked(true);
    };
    QVERIFY(show(message, [](QDialog&) {}));
    QCOMPARE(store.keys.size(), 0u);
    QVERIFY(show(message, check));
    QCOMPARE(store.keys.contains(key), isOffered);
    if (isOffered)
        QVERIFY(!m_messages->Show(message, nullptr));
    m_messages->SetSettings({});
}

void TestXMessageDialog::survivesTheEndOfItsParents()
{
    const auto end = [this](QDialog&) {
        m_messages.reset();
        m_parent.reset();
    };
    QVERIFY(show({MessageSeverity::Information, {}, QStringLiteral("text"), {}, {}}, end));
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

QTEST_MAIN(TestXMessageDialog)
#include "tst_xmessagedialog.moc"
