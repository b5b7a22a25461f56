// SPDX-License-Identifier: MIT
#include <guibase/colors/colorset.h>

#include <QApplication>
#include <QPalette>
#include <QTest>

namespace {

/// What the colour set does without an application object.
bool worksAlone()
{
    ColorSet& colors = ColorSet::Instance();
    colors.SetColor(IColorBase::AxisText, QColor(Qt::red), false);
    colors.Save(nullptr, QStringLiteral("**")); // nobody there to ask
    colors.slotRestoreSystemColors();
    const bool isLight = colors.GetColor(IColorBase::Slot66).lightness() > 200;
    colors.Load(nullptr, QStringLiteral("/nowhere/at.all"));
    return isLight && colors.GetColor(IColorBase::AxisText).lightness() < 50 &&
           colors.GetName() == QLatin1String(ColorSet::factoryDefaultName);
}

} // namespace

/// The colour set is there before the application object and outlives it.
class tst_ColorSetLifetime : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void takesThePaletteOfTheApplication()
    {
        ColorSet::Instance().slotRestoreSystemColors();
        QCOMPARE(ColorSet::Instance().GetColor(IColorBase::Slot66),
                 QGuiApplication::palette().color(QPalette::Active, QPalette::Window));
    }
};

int main(int argc, char** argv)
{
    if (!worksAlone())
        return 100;
    int failed = 0;
    {
        QApplication application(argc, argv);
        tst_ColorSetLifetime test;
        failed = QTest::qExec(&test, argc, argv);
    }
    return worksAlone() ? failed : 101;
}

#include "tst_colorsetlifetime.moc"
