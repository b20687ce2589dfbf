#include "setup/AddressStyle.h"

#include "support/OfficeTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString usa = u"USA Style Address"_s;
const QString international = u"International Style Address"_s;

} // namespace

class AddressStyleTest : public OfficeTest {
protected:
    LiveSettings& live = office.settings;

    void SetBusiness(const QString& name, const QString& postalCode) {
        live.BusinessData.fill({});
        live.BusinessData[0] = name;
        live.BusinessData[5] = postalCode;
        live.txtBusiness = live.BusinessData;
    }

    /// The style after a showing, whichever was in force before.
    void ExpectStyle(const QString& name, const QString& postalCode, const QString& style) {
        for (const QString& before : {usa, international}) {
            SetBusiness(name, postalCode);
            live.cmdAddress = before;
            ApplyAddressStyle(live);
            EXPECT_EQ(live.cmdAddress, style)
                << name.toStdString() << '/' << postalCode.toStdString() << " from "
                << before.toStdString();
        }
    }
};

TEST_F(AddressStyleTest, EmptySystemHasTheUsaStyle) {
    ExpectStyle({}, {}, usa);
}

TEST_F(AddressStyleTest, NumericPostalCodeHasTheUsaStyleWithANameAndWithout) {
    ExpectStyle({}, u"62704"_s, usa);
    ExpectStyle(u"Corner Dairy"_s, u"62704"_s, usa);
}

TEST_F(AddressStyleTest, NameWithoutAPostalCodeHasTheInternationalStyle) {
    ExpectStyle(u"Corner Dairy"_s, {}, international);
}

TEST_F(AddressStyleTest, NameWithAPostalCodeThatIsNoNumberHasTheUsaStyle) {
    ExpectStyle(u"Corner Dairy"_s, u"K1A 0B1"_s, usa);
    ExpectStyle(u"Corner Dairy"_s, u"62704-1234"_s, usa);
}

TEST_F(AddressStyleTest, BlankCountsAsAText) {
    ExpectStyle(u"Corner Dairy"_s, u" "_s, usa);
    ExpectStyle(u" "_s, {}, international);
}

TEST_F(AddressStyleTest, WithoutANameAndWithAPostalCodeThatIsNoNumberEachShowingFlips) {
    SetBusiness({}, u"K1A 0B1"_s);
    live.cmdAddress = usa;
    for (const QString& style : {international, usa, international, usa}) {
        ApplyAddressStyle(live);
        EXPECT_EQ(live.cmdAddress, style);
    }
}

TEST_F(AddressStyleTest, WhatCountsIsTheBusinessDataAndNotTheBoxes) {
    SetBusiness(u"Corner Dairy"_s, u"62704"_s);
    live.txtBusiness.fill({});
    live.cmdAddress = usa;
    ApplyAddressStyle(live);
    EXPECT_EQ(live.cmdAddress, usa);
    EXPECT_EQ(live.txtBusiness[5], u"62704"_s);
    EXPECT_EQ(live.txtBusiness[0], QString());
}

TEST_F(AddressStyleTest, NumbersAreThoseOfTheRegion) {
    UseLocale("de_DE");
    SetBusiness({}, u"10.115"_s);
    live.cmdAddress = usa;
    ApplyAddressStyle(live);
    EXPECT_EQ(live.cmdAddress, usa);
    SetBusiness({}, u"$10"_s);
    ApplyAddressStyle(live);
    EXPECT_EQ(live.cmdAddress, international);
}

TEST_F(AddressStyleTest, FlipToInternationalEmptiesThePostalCodeOfTheBoxAlone) {
    SetBusiness(u"Corner Dairy"_s, u"62704"_s);
    live.cmdAddress = usa;
    FlipAddressStyle(live);
    EXPECT_EQ(live.cmdAddress, international);
    EXPECT_EQ(live.txtBusiness[5], QString());
    EXPECT_EQ(live.BusinessData[5], u"62704"_s);
    EXPECT_EQ(live.txtBusiness[0], u"Corner Dairy"_s);
}

TEST_F(AddressStyleTest, FlipToUsaBringsBackThePostalCodeOfTheBusinessData) {
    SetBusiness(u"Corner Dairy"_s, u"62704"_s);
    live.cmdAddress = international;
    live.txtBusiness[5] = u"99999"_s;
    live.txtBusiness[4] = u"Illinois"_s;
    FlipAddressStyle(live);
    EXPECT_EQ(live.cmdAddress, usa);
    EXPECT_EQ(live.txtBusiness[5], u"62704"_s);
    EXPECT_EQ(live.txtBusiness[4], u"Illinois"_s);
}

TEST_F(AddressStyleTest, CaptionThatIsNotTheUsaStyleIsTheOther) {
    live.cmdAddress = usa;
    EXPECT_TRUE(IsUsaStyle(live));
    live.cmdAddress = international;
    EXPECT_FALSE(IsUsaStyle(live));
}
