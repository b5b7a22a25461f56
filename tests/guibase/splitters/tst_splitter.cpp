// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/randombytes.h"

#include <guibase/services/guibase.h>
#include <guibase/splitters/splitter.h>
#include <guibase/splitters/splitterhandle.h>

#include <trovappstartup/cfgcenter.h>

#include <QImage>
#include <QLabel>

#include <limits>
#include <memory>

namespace {

std::unique_ptr<ICfg> configuration()
{
    return CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("Splitter"));
}

QWidget* makePane()
{
    auto* pane = new QWidget;
    pane->setMinimumWidth(40);
    return pane;
}

/// A shown splitter of 600 pixels with some panes; each test has a name of its own, as the services
/// remember positions as long as the process lives.
std::unique_ptr<Splitter> makeSplitter(const QString& name, int panes = 2)
{
    auto splitter = std::make_unique<Splitter>(Qt::Horizontal, nullptr, QString(), name);
    for (int i = 0; i < panes; ++i)
        splitter->addWidget(makePane());
    splitter->resize(600 + splitter->handleWidth(), 200);
    splitter->show();
    return splitter;
}

void drag(QSplitterHandle& handle, int pixels)
{
    const QPoint target = handle.rect().center() + QPoint(pixels, 0);
    QTest::mousePress(&handle, Qt::LeftButton);
    QTest::mouseMove(&handle, target);
    QTest::mouseRelease(&handle, Qt::LeftButton, {}, target);
}

} // namespace

class tst_Splitter : public GuardedTest
{
    Q_OBJECT
    using Sizes = TestRows<QString, QList<int>, bool>;

private Q_SLOTS:
    void storedTexts()
    {
        const auto splitter = makeSplitter(QStringLiteral("texts"));
        QVERIFY(!splitter->opaqueResize());
        splitter->setSizes({200, 400});
        configuration()->SetString(QStringLiteral("texts_State"), QStringLiteral("not read yet"));
        splitter->slotKeepSettings(0, 1);
        const auto value = [](const char* key) {
            return configuration()->GetString(QLatin1String(key));
        };
        QCOMPARE(value("texts_State").toLatin1(), splitter->saveState().toHex());
        QCOMPARE(value("texts_State_damaged"), QStringLiteral("not read yet"));
        QCOMPARE(value("texts_Geometry").toLatin1(), splitter->saveGeometry().toHex());
        splitter->hide();
        splitter->setSizes({300, 300});
        splitter->slotKeepSettings(0, 1);
        GuiBase::Instance().StoreSplitterSizes2Cfg();
        QCOMPARE(value("texts_Sizes"), QStringLiteral("200;400;"));
    }
    void storedSizes_data()
    {
        // What is stored, the sizes, whether the text is damaged.
        Sizes row;
        row("two", "150;450;", {150, 450}, false);
        row("empty parts", ";150;;450", {150, 450}, false);
        row("one is not enough", "250;", {300, 300}, false);
        row("no numbers", "a;b;", {300, 300}, true);
        row("huge", "2147483647;2147483647;", {300, 300}, true);
    }
    void storedSizes()
    {
        const auto& [text, sizes, isDamaged] = Sizes::fetch();
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        configuration()->SetString(name + QStringLiteral("_Sizes"), text);
        QCOMPARE(makeSplitter(name)->sizes(), sizes);
        QCOMPARE(configuration()->GetString(name + QStringLiteral("_Sizes_damaged")),
                 isDamaged ? text : QString());
    }
    void widgetsAddedLater()
    {
        const QString name = QStringLiteral("later");
        makeSplitter(name, 3)->shiftHandle(1, -77);
        const QList<int> stored = makeSplitter(name, 3)->sizes();
        QVERIFY(stored.at(0) < stored.at(1));
        using Addition = std::function<void(Splitter&)>;
        for (const auto& add : {Addition([](Splitter& to) { to.addWidget(makePane()); }),
                                Addition([](Splitter& to) { to.insertWidget(1, makePane()); }),
                                Addition([](Splitter& to) { makePane()->setParent(&to); })}) {
            const auto splitter = makeSplitter(name, 1);
            add(*splitter);
            add(*splitter);
            QTRY_COMPARE(splitter->sizes(), stored);
            // One that nothing is stored for is not collapsed, now or when it is shown again.
            splitter->addWidget(new QLabel(QStringLiteral("new")));
            splitter->hide();
            splitter->show();
            QVERIFY(splitter->sizes().at(3) > 0);
        }
    }
    void hiddenWhileDragged()
    {
        const QString name = QStringLiteral("dragged");
        {
            const auto splitter = makeSplitter(name, 3);
            splitter->setSizes({200, 200, 200});
            splitter->widget(1)->hide();
            QCoreApplication::processEvents();
            drag(*splitter->handle(2), 30);
            splitter->widget(1)->show();
            QTRY_VERIFY(splitter->sizes().at(1) > 100);
            splitter->shiftHandle(1, std::numeric_limits<int>::max());
            QCOMPARE(splitter->sizes().at(1), 40);
            splitter->shiftHandle(1, -100);
        }
        QVERIFY(makeSplitter(name, 3)->sizes().at(1) > 100);
    }
    void hiddenAndMinimized()
    {
        const QString name = QStringLiteral("hidden");
        {
            const auto splitter = makeSplitter(name, 3);
            splitter->widget(1)->hide();
            QCoreApplication::processEvents();
            splitter->shiftHandle(2, 30);
            splitter->hide();
            splitter->show();
            splitter->widget(1)->show();
            QTRY_VERIFY(splitter->sizes().at(1) > 0);
        }
        const auto splitter = makeSplitter(name, 3);
        QVERIFY(splitter->sizes().at(1) > 0);
        splitter->setSizes({300, 200, 100});
        const QList<int> sizes = splitter->sizes();
        splitter->showMinimized();
        splitter->showNormal();
        QCoreApplication::processEvents();
        QCOMPARE(splitter->sizes(), sizes);
    }
    void variants()
    {
        const auto splitter = makeSplitter(QStringLiteral("variants"));
        auto* inner =
            new Splitter(Qt::Horizontal, splitter.get(), QString(), QStringLiteral("inner"));
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
    void damagedTexts()
    {
        RandomBytes random("splitter texts");
        const auto model = makeSplitter(QStringLiteral("model"));
        const std::pair<const char*, QByteArray> good[] = {
            {"damaged_State", model->saveState().toHex()},
            {"damaged_Geometry", model->saveGeometry().toHex()},
            {"damaged_Sizes", "200;400;"}};
        for (int round = 0; round < RandomBytes::rounds(200); ++round) {
            for (const auto& [key, text] : good)
                configuration()->SetString(QLatin1String(key),
                                           QString::fromLatin1(random.mutated(text)));
            const auto splitter = makeSplitter(QStringLiteral("damaged"));
            QVERIFY(splitter->width() < 100'000 && splitter->handleWidth() <= 256);
            QVERIFY(!splitter->opaqueResize());
        }
    }
    void keyboardAndDoubleClick()
    {
        const auto splitter = makeSplitter(QStringLiteral("keys"), 3);
        splitter->setSizes({200, 200, 200});
        splitter->widget(1)->hide();
        QTRY_COMPARE(splitter->sizes().at(0) + splitter->sizes().at(2),
                     splitter->width() - splitter->handleWidth());
        auto* handle = qobject_cast<SplitterHandle*>(splitter->handle(2));
        QVERIFY(!handle->accessibleName().isEmpty() && (handle->focusPolicy() & Qt::TabFocus));
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
        drag(*handle, -50);
        QCOMPARE(first(), total / 2 - 50);
    }
    void gripIsVisible()
    {
        const auto splitter = makeSplitter(QStringLiteral("grip"));
        for (const auto& [window, text] :
             {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white)}) {
            QPalette palette = splitter->palette();
            palette.setColor(QPalette::Window, window);
            palette.setColor(QPalette::WindowText, text);
            splitter->setPalette(palette);
            const QImage image = splitter->handle(1)->grab().toImage();
            const int grip = qGray(image.pixel(image.rect().center()));
            QVERIFY(qAbs(grip - qGray(QColor(window).rgb())) > 60);
        }
    }
};

QTEST_MAIN(tst_Splitter)
#include "tst_splitter.moc"
