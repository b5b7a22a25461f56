// SPDX-License-Identifier: MIT
#include <model/replay.h>

#include "support/checked.h"
#include "support/guardedtest.h"

#include <array>

using namespace bandmonitor;

/// Time is set by the test; ticks come as fast as the event loop goes.
class tst_Replay : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAndJumps()
    {
        QSignalSpy moved(m_replay.get(), &Replay::positionChanged);
        m_replay->stepBackward();
        QCOMPARE(m_replay->position(), 0);
        m_replay->stepForward();
        m_replay->jump(99);
        QCOMPARE(m_replay->position(), 5);
        m_replay->stepForward();
        m_replay->stepBackward();
        QCOMPARE(m_replay->sweep().timeUs, 10'000'000U);
        m_replay->jump(-5);
        QCOMPARE(m_replay->position(), 0);
        QCOMPARE(moved.count(), 4);
        QCOMPARE(moved.at(0).at(1).toInt(), 0); // where it came from, by a step
        QCOMPARE(moved.at(1).at(1).toInt(), -1);
        m_replay->play();
        m_replay->stepForward();
        QVERIFY(!m_replay->isPlaying());
    }
    void timeOfTheStamps()
    {
        m_replay->play();
        for (const auto& [milliseconds, position] :
             {std::pair(999, 0), std::pair(1, 1), std::pair(99, 1), std::pair(1, 2),
              std::pair(100, 3), std::pair(1999, 3), std::pair(1, 4), std::pair(9999, 4)}) {
            CHECKED(pass(milliseconds));
            QCOMPARE(m_replay->position(), position);
        }
    }
    void speedChangesKeepThePlace()
    {
        QSignalSpy moved(m_replay.get(), &Replay::positionChanged);
        m_replay->play();
        CHECKED(pass(500));
        m_replay->setSpeed(0.0); // cut to 0.1
        m_replay->setSpeed(qQNaN());
        CHECKED(pass(4990));
        QCOMPARE(moved.count(), 0);
        m_replay->setSpeed(1000); // passes several sweeps at once
        CHECKED(pass(2));
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toInt(), 3);
        QCOMPARE(moved.at(0).at(1).toInt(), 0);
    }
    void stallIsNotCaughtUp()
    {
        m_replay->jump(3);
        m_replay->play();
        m_nowUs += 3'600'000'000;
        const int looks = m_looks;
        QTRY_VERIFY(m_looks > looks);
        QCOMPARE(m_replay->position(), 3);
        CHECKED(pass(1000));
        QCOMPARE(m_replay->position(), 4);
    }
    void endAndStartAgain()
    {
        QSignalSpy ended(m_replay.get(), &Replay::endReached);
        QSignalSpy playing(m_replay.get(), &Replay::playingChanged);
        m_replay->setMaximumGap(std::chrono::milliseconds(100));
        m_replay->play();
        CHECKED(pass(500));
        QCOMPARE(m_replay->position(), 5);
        QCOMPARE(ended.count(), 1);
        QCOMPARE(playing.count(), 2);
        m_replay->toggle();
        QVERIFY(m_replay->isPlaying());
        QCOMPARE(m_replay->position(), 0);
        m_replay->jump(5);
        QTRY_VERIFY(!m_replay->isPlaying());
        QCOMPARE(ended.count(), 2);
    }
    void recordingThatGrows()
    {
        const auto growing = std::make_shared<Recording>();
        for (const auto& recording : {std::shared_ptr<Recording>(), growing}) {
            m_replay->setRecording(recording);
            m_replay->play();
            m_replay->stepForward();
            m_replay->jump(3);
            QCOMPARE(m_replay->position(), -1);
            QVERIFY(!m_replay->isPlaying());
            QVERIFY(m_replay->sweep().isEmpty());
        }
        growing->append(1, m_recording->sweep(0).segments);
        growing->append(2, m_recording->sweep(0).segments);
        m_replay->play();
        QCOMPARE(m_replay->position(), 0);
        CHECKED(pass(1));
        QCOMPARE(m_replay->position(), 1);
    }

    void loadingMakesPlayingWait()
    {
        QSignalSpy ended(m_replay.get(), &Replay::endReached);
        m_replay->setGrowth(Replay::Growth::Loading);
        m_replay->jump(5);
        m_replay->play();
        m_recording->append(3'611'000'000, m_recording->sweep(0).segments);
        m_replay->recordingGrown();
        CHECKED(pass(999));
        QCOMPARE(m_replay->position(), 5);
        CHECKED(pass(1));
        QCOMPARE(m_replay->position(), 6);
        QVERIFY(m_replay->isPlaying() && ended.isEmpty());
        m_replay->setGrowth(Replay::Growth::None);
        QVERIFY(!m_replay->isPlaying() && ended.count() == 1);
    }
    void liveSweepsAreFollowed()
    {
        QSignalSpy moved(m_replay.get(), &Replay::positionChanged);
        m_replay->setGrowth(Replay::Growth::Live);
        m_replay->toLast();
        QVERIFY(m_replay->isFollowing());
        const auto grow = [this](qsizetype first) {
            for (int i = 0; i < 3; ++i)
                m_recording->append(3'610'000'000, m_recording->sweep(5).segments);
            m_replay->recordingGrown(first);
        };
        grow(0);
        QCOMPARE(m_replay->position(), 8);
        QCOMPARE(moved.last().at(1).toInt(), 5);
        m_replay->pause();
        grow(0);
        QCOMPARE(m_replay->position(), 8);
        m_replay->play(); // from where it is, until it has caught up
        QVERIFY(!m_replay->isFollowing());
        CHECKED(pass(300));
        QVERIFY(m_replay->isFollowing());
        m_replay->jump(6);
        m_replay->pause();
        grow(9); // the shown one is about to go
        QCOMPARE(m_replay->position(), 9);
        QCOMPARE(moved.last().at(1).toInt(), 6); // those between are passed
        m_recording->dropBefore(9);
        m_replay->jump(0);
        m_replay->stepBackward();
        QCOMPARE(m_replay->position(), 9);
    }

private:
    void prepare() override
    {
        m_recording = std::make_shared<Recording>();
        const std::array levels = {1.0F};
        const std::array segments = {Segment{0, 1, 1, levels}};
        // Gaps in seconds: 1, none, back, 2, 3600.
        for (const quint64 second : {10U, 11U, 11U, 8U, 10U, 3610U})
            m_recording->append(second * 1'000'000, segments);
        m_replay = std::make_unique<Replay>();
        m_replay->setTickInterval(std::chrono::milliseconds(0));
        m_replay->setClock([this] { return ++m_looks, m_nowUs; });
        m_replay->setRecording(m_recording);
    }
    void tidy() override { m_replay.reset(); }
    /// Lets `milliseconds` pass, in pieces that the replay takes for an unbroken run.
    void pass(int milliseconds)
    {
        while (milliseconds > 0) {
            const int piece = std::min(milliseconds, 500);
            milliseconds -= piece;
            m_nowUs += piece * 1000;
            const int looks = m_looks;
            QTRY_VERIFY(m_looks > looks || !m_replay->isPlaying());
        }
    }

    std::shared_ptr<Recording> m_recording;
    std::unique_ptr<Replay> m_replay;
    qint64 m_nowUs = 0;
    int m_looks = 0;
};

QTEST_GUILESS_MAIN(tst_Replay)
#include "tst_replay.moc"
