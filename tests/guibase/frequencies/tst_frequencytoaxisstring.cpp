// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"

#include <guibase/frequencies/frequencytoaxisstring.h>
#include <guibase/services/guibase.h>

#include <optional>

class tst_FrequencyToAxisString : public GuardedTest
{
    Q_OBJECT

private Q_SLOTS:
    void followsApplicationSettings()
    {
        GuiBase& guiBase = GuiBase::Instance();
        guiBase.SetFrequencyUnit(UnitPrefix::Mega);
        FrequencyToAxisString axis;
        QCOMPARE(axis.convert(12.5e6), QStringLiteral("12.500"));
        QCOMPARE(axis.convertSuffixed(12.5e6), QStringLiteral("12.500  MHz"));
        guiBase.SetShowFrequencyInHz(true);
        guiBase.SetFrequencyUnit(UnitPrefix::Kilo);
        QCOMPARE(axis.convert(12.5e6), QStringLiteral("12500.000"));
        guiBase.SetShowFrequencyInHz(false);
        QCOMPARE(axis.convert(12.5e6), QStringLiteral("12500"));
    }
    void copiesOutliveOriginal()
    {
        GuiBase::Instance().SetFrequencyUnit(UnitPrefix::Mega);
        std::optional<FrequencyToAxisString> original(std::in_place);
        original->convert(1e6);
        FrequencyToAxisString copy(*original);
        FrequencyToAxisString assigned;
        assigned = *original;
        const QString& text = copy.convertSuffixed(2e6);
        original.reset();
        QCOMPARE(assigned.convert(3e6), QStringLiteral("3.000"));
        QCOMPARE(text, QStringLiteral("2.000  MHz"));
    }
};

QTEST_MAIN(tst_FrequencyToAxisString)
#include "tst_frequencytoaxisstring.moc"
