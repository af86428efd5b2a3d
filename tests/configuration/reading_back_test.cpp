// What of a configuration survives being composed and read again: not everything that a printer reports can be set.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "KVJConfigParser.h"
#include "configuration/requests.h"

namespace reading_back_test {

namespace {

using namespace kvj::tests;

/// A setting with a fraction comes back as its maximum.
template <class Record>
void toMaximum(Record& record) {
    for (const Setting<Record>& setting : Settings<Record>::list) {
        if (setting.fraction != nullptr) (record.*setting.fraction).value = (record.*setting.fraction).max;
    }
}

class ReadingBack : public Requests {
protected:
    _KVConfiguration back;

    /// Composes these sections of the complete record and reads them.
    std::string readBack(const Selection& selection) {
        const Composed request = composed(cfg, selection);
        EXPECT_TRUE(request.result);
        preset(back);
        EXPECT_FALSE(KVJConfigParser().GetConfiguration(request.text.c_str(), 0, back));
        return bytesOf(back);
    }
    /// Reads these sections back and expects of them a record that is zero but for what `set` sets.
    template <class Set>
    void expectBack(const Selection& selection, Set set) {
        _KVConfiguration expected;
        clear(expected);
        set(expected);
        EXPECT_EQ(readBack(selection), bytesOf(expected));
    }

    /// The rows of a custom card that a request has.
    static void setCard(_CustomCardInfo& to, const _CustomCardInfo& from) {
        to = from;
        toMaximum(to.transferSpeeds);
        toMaximum(to.laminatorAdjustments);
    }
    static void setRibbon(_RibbonInfo& to, const _RibbonInfo& from, const char* name) {
        to = from;
        std::memset(to.description, 0, sizeof to.description);
        std::strcpy(to.description, name);
        to.ribbonCode = 0;
    }
    static void setLaminate(_Laminate& to, const _Laminate& from) {
        to = from;
        to.laminateInstalled.width = 0;
        to.laminateInstalled.registration = 0;
        to.laminatePresent = false;
    }
    void setGeneral(_KVConfiguration& to) const {
        std::memcpy(to.physicalAddress, cfg.physicalAddress, sizeof to.physicalAddress);
        to.ocpLanguage = cfg.ocpLanguage;
        to.errorControl = cfg.errorControl;
        to.usbSpeed = cfg.usbSpeed;
        to.numCardsPrinted = cfg.numCardsPrinted;
        to.numLinesPrinted = cfg.numLinesPrinted;
        to.standbyTimeout = cfg.standbyTimeout;
        to.feederMode = cfg.feederMode;
        to.ribbonSensorOffset = cfg.ribbonSensorOffset;
        to.lcdContrast = cfg.lcdContrast;
        to.usbTimeout = cfg.usbTimeout;
        to.cleaning = cfg.cleaning;
    }
    void setWirelessAsEthernet(_KVConfiguration& to) const {
        to.ethernet.ipAddress = cfg.wireless.ipAddress;
        to.ethernet.subnetMask = cfg.wireless.subnetMask;
        to.ethernet.gateway = cfg.wireless.gateway;
        to.ethernet.dhcp = cfg.wireless.dhcp;
        to.ethernet.snmp = cfg.wireless.snmp;
    }
};

TEST_F(ReadingBack, TheGeneralSectionsSurviveWhole) {
    constexpr long bits = 0x1 | 0x8 | 0x10 | 0x20 | 0x40 | 0x400 | 0x10000 | 0x20000 | 0x400000;
    expectBack({.mask = bits}, [&](auto& expected) {
        setGeneral(expected);
        expected.usbTimeout = {};
    });
}

TEST_F(ReadingBack, TheWiredNetworkSurvivesWhole) {
    expectBack({.mask = 0x2}, [&](auto& expected) { expected.ethernet = cfg.ethernet; });
}

TEST_F(ReadingBack, TheWirelessNetworkIsTakenForTheWiredOne) {
    expectBack({.mask = 0x4}, [&](auto& expected) { setWirelessAsEthernet(expected); });
}

TEST_F(ReadingBack, OfBothNetworksTheWirelessOneTakesThePlaceOfTheWired) {
    expectBack({.mask = 0x6}, [&](auto& expected) { setWirelessAsEthernet(expected); });
}

TEST_F(ReadingBack, OfImagingTheMakersAdjustmentsAreLost) {
    expectBack({.mask = 0x80}, [&](auto& expected) {
        expected.imagingParameters.printheadResistance = cfg.imagingParameters.printheadResistance;
        expected.imagingParameters.userPowerAdjustments = cfg.imagingParameters.userPowerAdjustments;
    });
}

TEST_F(ReadingBack, OfImagingDirectToCardTheInhibitPowerIsLostToo) {
    expectBack({.mask = 0x80, .directToCard = true}, [&](auto& expected) {
        expected.imagingParameters.printheadResistance = cfg.imagingParameters.printheadResistance;
        expected.imagingParameters.userPowerAdjustments = cfg.imagingParameters.userPowerAdjustments;
        expected.imagingParameters.userPowerAdjustments.inhibit = {};
    });
}

TEST_F(ReadingBack, TheMotorsCoefficientsComeBackAsTheirMaximumAndVtoIIsLost) {
    expectBack({.mask = 0x200}, [&](auto& expected) {
        expected.ribbonMotorParameters = cfg.ribbonMotorParameters;
        toMaximum(expected.ribbonMotorParameters);
        expected.ribbonMotorParameters.VtoI = {};
    });
}

TEST_F(ReadingBack, OfTheMechanicsTheFlipperIsLost) {
    expectBack({.mask = 0x1000}, [&](auto& expected) {
        expected.mechAdjustments = cfg.mechAdjustments;
        expected.mechAdjustments.flipperSensorOffset = {};
        expected.usbTimeout = cfg.usbTimeout;
    });
}

TEST_F(ReadingBack, OfTheMechanicsDirectToCardFilmAndTransferAreLost) {
    expectBack({.mask = 0x1000, .directToCard = true}, [&](auto& expected) {
        expected.mechAdjustments = cfg.mechAdjustments;
        expected.mechAdjustments.filmPrintXOffset = {};
        expected.mechAdjustments.filmPrintYOffset = {};
        expected.mechAdjustments.filmTransferStartOffset = {};
        expected.mechAdjustments.cardTransferStartYOffset = {};
        expected.mechAdjustments.cardTransferEndYOffset = {};
        expected.mechAdjustments.cardTransferRollYOffset = {};
        expected.mechAdjustments.filmEndRollTransferOffset = {};
        expected.mechAdjustments.filmExtraTransferTakeupMove = {};
        expected.usbTimeout = cfg.usbTimeout;
    });
}

TEST_F(ReadingBack, ARibbonComesBackWithTheNameOfItsCodeAndWithoutTheCode) {
    expectBack({.mask = 0x2000}, [&](auto& expected) {
        setRibbon(expected.ribbon, cfg.ribbon, "Red");
        setRibbon(expected.film, cfg.film, "Hologram");
    });
    expectBack({.mask = 0x2000, .directToCard = true},
               [&](auto& expected) { setRibbon(expected.ribbon, cfg.ribbon, "Red"); });
}

TEST_F(ReadingBack, ALaminateComesBackWithoutWidthRegistrationAndPresence) {
    expectBack({.mask = 0x40000}, [&](auto& expected) {
        expected.lamination.laminateCommon = cfg.lamination.laminateCommon;
        setLaminate(expected.lamination.topLaminate, cfg.lamination.topLaminate);
        setLaminate(expected.lamination.bottomLaminate, cfg.lamination.bottomLaminate);
    });
}

TEST_F(ReadingBack, TheCardsSurviveButForTheValuesOfSpeeds) {
    expectBack({.mask = 0x4000}, [&](auto& expected) {
        setCard(expected.customCard1, cfg.customCard1);
        setCard(expected.customCard2, cfg.customCard2);
    });
}

TEST_F(ReadingBack, ACardAloneSurvives) {
    expectBack({.mask = 0x4000, .card = 1}, [&](auto& expected) { setCard(expected.customCard1, cfg.customCard1); });
    expectBack({.mask = 0x4000, .card = 2}, [&](auto& expected) { setCard(expected.customCard2, cfg.customCard2); });
}

TEST_F(ReadingBack, ASecondCardDescribedCustom1IsTakenForTheFirst) {
    std::strcpy(cfg.customCard2.description, "Custom 1");
    expectBack({.mask = 0x4000}, [&](auto& expected) {
        setCard(expected.customCard1, cfg.customCard2);
        std::memset(expected.customCard1.description, 0, sizeof expected.customCard1.description);
        std::strcpy(expected.customCard1.description, "Custom 1");
    });
}

TEST_F(ReadingBack, OfTheCardsDirectToCardTransferIsLost) {
    expectBack({.mask = 0x4000, .directToCard = true}, [&](auto& expected) {
        setCard(expected.customCard1, cfg.customCard1);
        setCard(expected.customCard2, cfg.customCard2);
        for (_CustomCardInfo* card : {&expected.customCard1, &expected.customCard2}) {
            card->transferTemps = {};
            card->transferSpeeds = {};
        }
    });
}

TEST_F(ReadingBack, TheTransferSurvivesButForTheValuesOfSpeeds) {
    expectBack({.mask = 0x8000}, [&](auto& expected) {
        expected.transferSettings = cfg.transferSettings;
        toMaximum(expected.transferSettings.transferSpeeds);
    });
}

TEST_F(ReadingBack, TheEncodersChannelComesBackAsThatOfItsCodeAndTheSecondEncoderIsLost) {
    expectBack({.mask = 0x80000}, [&](auto& expected) {
        expected.internalEncoder.commsChannel = 1;
        expected.internalEncoder.contactEncoding = true;
        expected.internalEncoder.contactlessEncoder = 1;
    });
}

TEST_F(ReadingBack, AllSectionsTogetherComeBackAsEachByItself) {
    expectBack({}, [&](auto& expected) {
        setGeneral(expected);
        setWirelessAsEthernet(expected);
        expected.imagingParameters = cfg.imagingParameters;
        expected.imagingParameters.mfgPowerAdjustments = {};
        expected.ribbonMotorParameters = cfg.ribbonMotorParameters;
        toMaximum(expected.ribbonMotorParameters);
        expected.ribbonMotorParameters.VtoI = {};
        expected.mechAdjustments = cfg.mechAdjustments;
        expected.mechAdjustments.flipperSensorOffset = {};
        setRibbon(expected.ribbon, cfg.ribbon, "Red");
        setRibbon(expected.film, cfg.film, "Hologram");
        expected.lamination.laminateCommon = cfg.lamination.laminateCommon;
        setLaminate(expected.lamination.topLaminate, cfg.lamination.topLaminate);
        setLaminate(expected.lamination.bottomLaminate, cfg.lamination.bottomLaminate);
        setCard(expected.customCard1, cfg.customCard1);
        setCard(expected.customCard2, cfg.customCard2);
        expected.transferSettings = cfg.transferSettings;
        toMaximum(expected.transferSettings.transferSpeeds);
        expected.internalEncoder.commsChannel = 1;
        expected.internalEncoder.contactEncoding = true;
        expected.internalEncoder.contactlessEncoder = 1;
    });
}

}  // namespace

}  // namespace reading_back_test
