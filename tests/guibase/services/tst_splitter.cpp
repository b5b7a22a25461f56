// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/services/guibase.h>
#include <guibase/services/splitter.h>
#include <guibase/services/splitterhandle.h>

#include <trovappstartup/cfgcenter.h>

#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

std::unique_ptr<ICfg> configuration()
{
    return CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("Splitter"));
}

/// A shown splitter of 600 pixels with some panes; each test has a name of its own, as the services
/// remember positions as long as the process lives.
std::unique_ptr<Splitter> makeSplitter(const QString& name, int panes = 2)
{
    auto splitter = std::make_unique<Splitter>(Qt::Horizontal, nullptr, QString(), name);
    for (int i = 0; i < panes; ++i) {
        auto* pane = new QWidget;
        pane->setMinimumWidth(40);
        splitter->addWidget(pane);
    }
    splitter->resize(600 + splitter->handleWidth(), 200);
    splitter->show();
    return splitter;
}

} // namespace

class TestSplitter : public GuardedTest
{
    Q_OBJECT
private Q_SLOTS:
    void storedTexts();
    void storedSizes_data();
    void storedSizes();
    void widgetsAddedLater();
    void variants();
    void damagedTexts();
    void keyboardAndDoubleClick();
    void gripIsVisible_data();
    void gripIsVisible();
};

void TestSplitter::storedTexts()
{
    const auto splitter = makeSplitter(QStringLiteral("texts"));
    QVERIFY(!splitter->opaqueResize());
    splitter->setSizes({200, 400});
    splitter->slotKeepSettings(0, 1);
    GuiBase::Instance().StoreSplitterSizes2Cfg();
    const auto value = [](const char* key) {
        return configuration()->GetString(QLatin1String(key));
    };
    QCOMPARE(value("texts_Sizes"), QStringLiteral("200;400;"));
    QCOMPARE(value("texts_State").toLatin1(), splitter->saveState().toHex());
    QCOMPARE(value("texts_Geometry").toLatin1(), splitter->saveGeometry().toHex());
    splitter->hide();
    splitter->setSizes({300, 300});
    splitter->slotKeepSettings(0, 1);
    QCOMPARE(value("texts_Sizes"), QStringLiteral("200;400;"));
}

void TestSplitter::storedSizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("sizes");
    QTest::newRow("two") << QStringLiteral("150;450;") << QList{150, 450};
    QTest::newRow("empty parts") << QStringLiteral(";150;;450") << QList{150, 450};
    QTest::newRow("one is not enough") << QStringLiteral("250;") << QList{300, 300};
    QTest::newRow("no numbers") << QStringLiteral("a;b;") << QList{300, 300};
    QTest::newRow("huge") << QStringLiteral("2147483647;2147483647;") << QList{300, 300};
}

void TestSplitter::storedSizes()
{
    QFETCH(QString, text);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    configuration()->SetString(name + QStringLiteral("_Sizes"), text);
    QTEST(makeSplitter(name)->sizes(), "sizes");
}

void TestSplitter::widgetsAddedLater()
{
    const QString name = QStringLiteral("later");
    makeSplitter(name, 3)->shiftHandle(1, -77);
    const auto splitter = makeSplitter(name, 1);
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    const QList<int> stored = makeSplitter(name, 3)->sizes();
    QCOMPARE(splitter->sizes(), stored);
    QVERIFY(stored.at(0) < stored.at(1));
    // One that nothing is stored for is not collapsed, now or when it is shown again.
    splitter->addWidget(new QLabel(QStringLiteral("new")));
    splitter->hide();
    splitter->show();
    QVERIFY(splitter->sizes().at(3) > 0);
}

void TestSplitter::variants()
{
    const auto splitter = makeSplitter(QStringLiteral("variants"));
    auto* inner = new Splitter(Qt::Horizontal, splitter.get(), QString(), QStringLiteral("inner"));
    inner->addWidget(new QWidget);
    inner->addWidget(new QWidget);
    QTRY_VERIFY(inner->isVisible());
    splitter->setSizes({150, 150, 300});
    QTRY_VERIFY(inner->sizes().at(0) > 100);
    splitter->setVariant(QStringLiteral("A"));
    splitter->shiftHandle(1, 60);
    inner->shiftHandle(1, -20);
    const QList<int> sizes = splitter->sizes();
    const QList<int> innerSizes = inner->sizes();
    splitter->setVariant(QStringLiteral("B"));
    splitter->equalizeNeighbours(1);
    inner->equalizeNeighbours(1);
    QVERIFY(splitter->sizes() != sizes && inner->sizes() != innerSizes);
    splitter->setVariant(QStringLiteral("A"));
    QCOMPARE(splitter->sizes(), sizes);
    QCOMPARE(inner->sizes(), innerSizes);
}

void TestSplitter::damagedTexts()
{
    RandomBytes random("splitter texts");
    const auto model = makeSplitter(QStringLiteral("model"));
    const QByteArray good[] = {model->saveState().toHex(), model->saveGeometry().toHex(),
                               QByteArray("200;400;")};
    const char* const suffixes[] = {"_State", "_Geometry", "_Sizes"};
    for (int round = 0; round < RandomBytes::rounds(200); ++round) {
        const QString name = QStringLiteral("damaged%1").arg(round);
        for (int i = 0; i < 3; ++i)
            configuration()->SetString(name + QLatin1String(suffixes[i]),
                                       QString::fromLatin1(random.mutated(good[i])));
        const auto splitter = makeSplitter(name);
        QVERIFY(splitter->width() < 100'000);
        QVERIFY(!splitter->opaqueResize());
    }
}

void TestSplitter::keyboardAndDoubleClick()
{
    const auto splitter = makeSplitter(QStringLiteral("keys"), 3);
    splitter->setSizes({200, 200, 200});
    splitter->widget(1)->hide();
    QTRY_COMPARE(splitter->sizes().at(0) + splitter->sizes().at(2),
                 splitter->width() - splitter->handleWidth());
    auto* handle = qobject_cast<SplitterHandle*>(splitter->handle(2));
    QVERIFY(handle != nullptr && !handle->accessibleName().isEmpty());
    QVERIFY(handle->focusPolicy() & Qt::TabFocus);
    QSignalSpy moves(splitter.get(), &QSplitter::splitterMoved);
    const auto first = [&] { return splitter->sizes().at(0); };
    const int total = first() + splitter->sizes().at(2);
    QTest::keyClick(handle, Qt::Key_Return);
    QCOMPARE(first(), total / 2);
    QTest::keyClick(handle, Qt::Key_Right);
    QTest::keyClick(handle, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(handle, Qt::Key_Up);
    QCOMPARE(first(), total / 2 + SplitterHandle::keyStep - 1);
    QTest::keyClick(handle, Qt::Key_Home);
    QCOMPARE(first(), 40);
    QTest::keyClick(handle, Qt::Key_End);
    QCOMPARE(first(), total - 40);
    splitter->setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(handle, Qt::Key_Right);
    QCOMPARE(first(), total - 40 - SplitterHandle::keyStep);
    splitter->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(moves.count(), 6);

    // As the mouse sends it: the release that follows must not move the handle back.
    QTest::mouseClick(handle, Qt::LeftButton);
    QTest::mouseDClick(handle, Qt::LeftButton);
    QCOMPARE(first(), total / 2);
    QTest::mousePress(handle, Qt::LeftButton);
    QTest::mouseMove(handle, handle->rect().center() + QPoint(-50, 0));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, handle->rect().center() + QPoint(-50, 0));
    QCOMPARE(first(), total / 2 - 50);
}

void TestSplitter::gripIsVisible_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(Qt::black) << QColor(Qt::white);
}

void TestSplitter::gripIsVisible()
{
    QFETCH(QColor, window);
    QFETCH(QColor, text);
    const auto splitter = makeSplitter(QStringLiteral("grip"));
    QPalette palette = splitter->palette();
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    splitter->setPalette(palette);
    QWidget* handle = splitter->handle(1);
    const QImage image = handle->grab().toImage();
    const int grip = qGray(image.pixel(image.rect().center()));
    QVERIFY(qAbs(grip - qGray(window.rgb())) > 60);
}

QTEST_MAIN(TestSplitter)
#include "tst_splitter.moc"
