#include <cmath>

#include <QJsonDocument>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/NamedException.h"
#include "model/LocationResult.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using ::testing::HasSubstr;

QString reasonOfAsDict(const LocationResult& place) {
    try {
        (void)place.asDict();
    } catch (const NamedException& exception) {
        EXPECT_EQ(exception.name(), QStringLiteral("QKInvalidLocationException"));
        EXPECT_TRUE(exception.userInfo().isEmpty());
        return exception.reason();
    }
    return QStringLiteral("none");
}

TEST(LocationResult, DefaultPlacesHoldExactlyTheirKeys) {
    const QStringList keys = LocationResult::defaultSearchResult().asDict().keys();
    EXPECT_EQ(keys.join(QLatin1Char(' ')),
              QStringLiteral("country country-name latitude locationType longitude name "
                             "province-name provinceID timezone uid"));
    const QVariantMap bad = LocationResult::defaultBadSearchResult().asDict();
    EXPECT_EQ(bad.size(), 9);
    EXPECT_FALSE(bad.contains(QStringLiteral("provinceID")));
    EXPECT_EQ(bad.value(QStringLiteral("country")), QVariant(99LL));
}

TEST(LocationResult, DefaultCoordinatesAreSinglePrecision) {
    const QVariantMap dict = LocationResult::defaultSearchResult().asDict();
    EXPECT_EQ(dict.value(QStringLiteral("latitude")).typeId(), QMetaType::Float);
    EXPECT_EQ(dict.value(QStringLiteral("latitude")).toDouble(), 52.529998779296875);
    EXPECT_EQ(dict.value(QStringLiteral("longitude")).toDouble(), 13.380000114440918);
}

TEST(LocationResult, EmptyDictionaryGivesZeroNumbersAndNoTexts) {
    const LocationResult place((QVariantMap()));
    for (const auto& number : {place.city(), place.country(), place.inhabitants(), place.favorite(),
                               place.longitude(), place.latitude()})
        EXPECT_EQ(number, Number(0));
    EXPECT_EQ(place.longitude()->kind(), Number::Kind::Double);
    EXPECT_EQ(place.city()->kind(), Number::Kind::Integer);
    EXPECT_FALSE(place.isFavorite());
    EXPECT_FALSE(place.locationType() || place.uid() || place.provinceID() || place.elevation());
    EXPECT_FALSE(place.name() || place.timezone() || place.deviceId() || place.countryName());
    EXPECT_FALSE(place.checkValidity());
    EXPECT_FALSE(place.objTimeZone().isValid());
}

TEST(LocationResult, DictionaryRoundTripDropsOnlyTheProvinceNumber) {
    QVariantMap dict = LocationResult::defaultSearchResult().asDict();
    dict.insert(QStringLiteral("deviceId"), QString(QLatin1String("")));
    dict.insert(QStringLiteral("favorite"), 1);
    const LocationResult place = LocationResult::locationResultWithDict(dict);
    EXPECT_TRUE(place.isFavorite());
    EXPECT_TRUE(place.isNetatmoStation());
    EXPECT_TRUE(place.checkValidity());

    dict.remove(QStringLiteral("provinceID"));
    dict.insert(QStringLiteral("city"), 0);
    dict.insert(QStringLiteral("inhabitants"), 0);
    EXPECT_EQ(place.asDict(), dict);
}

TEST(LocationResult, WrongTypesAreReadAsFarAsUsable) {
    const char json[] = R"({"uid": "17 or so", "name": 42, "timezone": [1], "latitude": "52.5N",
                            "longitude": {}, "favorite": true, "locationType": []})";
    const LocationResult place(QJsonDocument::fromJson(json).toVariant().toMap());
    EXPECT_EQ(place.uid(), Number(17));
    EXPECT_EQ(place.latitude(), Number(52.5));
    EXPECT_EQ(place.longitude(), Number(0.0));
    EXPECT_EQ(place.locationType(), Number(0));
    EXPECT_TRUE(place.isFavorite());
    EXPECT_FALSE(place.name() || place.timezone());
    EXPECT_FALSE(place.checkValidity());
}

TEST(LocationResult, AsDictNamesTheFirstMissingValue) {
    LocationResult place;
    EXPECT_EQ(reasonOfAsDict(place), QStringLiteral("Name cannot be nil"));
    place.setName(QStringLiteral(""));
    EXPECT_EQ(reasonOfAsDict(place), QStringLiteral("Longitude cannot be nil"));
    place.setLongitude(Number(0));
    EXPECT_EQ(reasonOfAsDict(place), QStringLiteral("Latitude cannot be nil"));
    place.setLatitude(Number(0));
    EXPECT_EQ(reasonOfAsDict(place), QStringLiteral("none"));
}

TEST(LocationResult, ValidityNeedsUidNameAndAPlaceOffTheOrigin) {
    testing::forEachLine("model/validity.tsv", [](const testing::DataLine& line) {
        LocationResult place;
        place.setUid(Number(line.integer(0)));
        place.setName(line[1]);
        place.setLatitude(Number(line.number(2)));
        place.setLongitude(Number(line.number(3)));
        EXPECT_EQ(place.checkValidity(), line.isYes(4));
    });
}

TEST(LocationResult, OnlyTheUidDecidesEquality) {
    LocationResult place = LocationResult::defaultSearchResult();
    LocationResult same;
    same.setUid(Number(18228265.0));
    LocationResult different = place;
    different.setUid(Number(18228266));
    const LocationResult unknown;
    EXPECT_TRUE(place.isEqual(&same));
    EXPECT_FALSE(place.isEqual(&different));
    EXPECT_TRUE(place.isEqual(&unknown));
    EXPECT_FALSE(place.isEqual(nullptr));
    place.setUid(std::nullopt);
    EXPECT_FALSE(place.isEqual(&same));
    EXPECT_TRUE(place.isEqual(&unknown));
}

TEST(LocationResult, FavoriteSettersAreNotSymmetric) {
    LocationResult place = LocationResult::defaultSearchResult();
    place.setFavorite(Number(0));
    place.setIsFavorite(true);
    EXPECT_EQ(place.asDict().value(QStringLiteral("favorite")), QVariant(0LL));
    place.setFavorite(Number(2));
    EXPECT_TRUE(place.isFavorite());
    place.setFavorite(std::nullopt);
    EXPECT_FALSE(place.isFavorite());
}

TEST(LocationResult, DistanceIsTheGreatCircleInSinglePrecision) {
    const LocationResult berlin = LocationResult::defaultSearchResult();
    EXPECT_NEAR(berlin.distance({48.14, 11.58}), 504.54, 0.005);
    EXPECT_NEAR(berlin.distance({-52.53, -166.62}), 6371.0 * 3.14159265, 0.5);
    // 1e-9 degrees are less than single precision can tell apart: the same spot, 0 or no number.
    const double sameSpot = berlin.distance({52.53 + 1e-9, 13.38});
    EXPECT_TRUE(std::isnan(sameSpot) || sameSpot < 0.2) << sameSpot;
}

TEST(LocationResult, TimeZoneIsKeptOnceFound) {
    LocationResult place;
    place.setTimezone(QStringLiteral("Nowhere/Land"));
    EXPECT_FALSE(place.objTimeZone().isValid());
    place.setTimezone(QStringLiteral("Asia/Kolkata"));
    EXPECT_EQ(place.objTimeZone().id(), "Asia/Kolkata");
    place.setTimezone(QStringLiteral("Europe/Berlin"));
    EXPECT_EQ(place.objTimeZone().id(), "Asia/Kolkata");
    place.setObjTimeZone({});
    EXPECT_EQ(place.objTimeZone().id(), "Europe/Berlin");
}

TEST(LocationResult, DescriptionShowsTheDictionaryOfAValidPlace) {
    LocationResult place = LocationResult::defaultSearchResult();
    EXPECT_THAT(place.description().toStdString(), HasSubstr("latitude = 52.53; "));
    place.setUid(std::nullopt);
    EXPECT_TRUE(place.description().endsWith(QStringLiteral(">, <invalid LocationResult>")));
    // Valid by its latitude alone, yet without dictionary form.
    place.setUid(Number(1));
    place.setLongitude(std::nullopt);
    EXPECT_THROW((void)place.description(), NamedException);
}

}  // namespace
}  // namespace zephyrix
