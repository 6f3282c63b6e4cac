#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include <QDateTime>
#include <gtest/gtest.h>

#include "foundation/Instant.h"
#include "foundation/PropertyList.h"
#include "support/DataLines.h"

namespace zephyrix {
namespace {

using testing::dataLines;

QByteArray document(const QByteArray& value) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + value +
           "</plist>";
}

QVariant roundTrip(const QVariant& value) {
    const auto bytes = PropertyList::write({{QStringLiteral("value"), value}});
    const auto values = bytes ? PropertyList::read(*bytes) : std::nullopt;
    return values ? values->value(QStringLiteral("value")) : QVariant();
}

QVariant utc(const char* text) {
    return QDateTime::fromString(QLatin1String(text), Qt::ISODateWithMs);
}

TEST(PropertyList, ValuesComeBackWithTypeAndValue) {
    const QVariantList cases{
        QStringLiteral("Zürich <&> \"x\" \r\n\t ]]> 🌦 "),
        QString(),
        QVariant::fromValue(std::numeric_limits<qlonglong>::min()),
        QVariant::fromValue(std::numeric_limits<qulonglong>::max()),
        true,
        false,
        0.1,
        static_cast<double>(52.53F),
        5e-324,
        -std::numeric_limits<double>::infinity(),
        utc("2015-03-29T02:30:00Z"),  // a local time that the test's zone skips
        utc("0001-01-01T00:00:00Z"),
        QByteArray("\0\xff<", 3),
        QVariantList{1LL, QVariantMap{}, QVariantList{}},
        QVariantMap{{QStringLiteral("a & b"), 1LL}, {QString(), QStringLiteral("x")}},
    };
    for (const QVariant& value : cases) {
        const QVariant again = roundTrip(value);
        EXPECT_EQ(again.typeId(), value.typeId()) << value.typeName();
        EXPECT_EQ(again, value) << qPrintable(value.toString());
    }
    EXPECT_TRUE(std::isnan(roundTrip(std::nan("")).toDouble()));
    EXPECT_TRUE(std::signbit(roundTrip(-0.0).toDouble()));
}

TEST(PropertyList, RandomRealsReadBackExactly) {
    std::mt19937_64 random(20150601);  // a fixed seed: the same values in each run
    for (int i = 0; i < 2000; ++i) {
        const auto value = std::bit_cast<double>(random());
        const QVariant again = roundTrip(value);
        ASSERT_TRUE(again.toDouble() == value || std::isnan(value)) << value;
    }
}

TEST(PropertyList, DatesAreWholeSecondsRoundedDown) {
    EXPECT_EQ(roundTrip(utc("2015-06-01T10:00:00.999Z")), utc("2015-06-01T10:00:00Z"));
    EXPECT_EQ(roundTrip(utc("1969-12-31T23:59:59.001Z")), utc("1969-12-31T23:59:59Z"));
    EXPECT_EQ(roundTrip(utc("2015-06-01T10:00:00+02:00")), utc("2015-06-01T08:00:00Z"));
    EXPECT_EQ(roundTrip(QVariant::fromValue(Instant::fromSecondsSince1970(1433152800.7))),
              utc("2015-06-01T10:00:00Z"));
}

TEST(PropertyList, TextThatXmlCannotCarryStaysReadable) {
    const QChar lone(0xD83C);
    const QString text = QStringLiteral("a\x01") + QChar::Null + lone + QStringLiteral("b") +
                         QChar(0xFFFE) + QChar(0xDF26) + lone;
    EXPECT_EQ(roundTrip(text).toString(), QStringLiteral("a\uFFFD\uFFFD\uFFFDb\uFFFD\uFFFD\uFFFD"));
}

TEST(PropertyList, NothingIsLeftOutAndOtherTypesAreRefused) {
    const QVariant nothing = QVariant::fromValue(nullptr);
    EXPECT_EQ(roundTrip(QVariantList{1LL, nothing, QVariant()}), QVariant(QVariantList{1LL}));
    EXPECT_EQ(*PropertyList::read(*PropertyList::write({{QStringLiteral("key"), nothing}})),
              QVariantMap{});
    QString problem;
    EXPECT_FALSE(PropertyList::write({{QStringLiteral("key"), QDateTime()}}, &problem));
    EXPECT_FALSE(PropertyList::write({{QStringLiteral("key"), QChar(u'x')}}, &problem));
    EXPECT_EQ(problem, QStringLiteral("no element for the type QChar"));
}

TEST(PropertyList, WhatIsWrittenStaysWithinTheLimitsOfReading) {
    QVariant nested = 1LL;
    for (int depth = 1; depth < PropertyList::mostDepth; ++depth)
        nested = QVariantList{nested};
    EXPECT_EQ(roundTrip(nested), nested);
    EXPECT_FALSE(PropertyList::write({{QStringLiteral("key"), QVariantList{nested}}}));
    EXPECT_FALSE(PropertyList::write(
        {{QStringLiteral("key"), QString(PropertyList::mostBytes, QLatin1Char('x'))}}));
}

TEST(PropertyList, ReadsWhatOtherWritersMake) {
    const auto values = PropertyList::read(
        "\xEF\xBB\xBF<?xml version='1.0'?><!-- a note -->\n"
        "<!DOCTYPE plist PUBLIC \"-//Any//DTD PLIST 1.0//EN\" \"http://127.0.0.1/none.dtd\">"
        "<plist><dict><key>h</key><integer> 0xff </integer><key>r</key><real>+1.50</real>"
        "<key>d</key><data>\n\tAAEC\n\t</data><key>s</key><string><![CDATA[<x>]]></string>"
        "<key>s2</key><string>a<!-- b -->c</string></dict></plist>\n");
    ASSERT_TRUE(values);
    EXPECT_EQ(*values, (QVariantMap{{QStringLiteral("h"), 255LL},
                                    {QStringLiteral("r"), 1.5},
                                    {QStringLiteral("d"), QByteArray("\0\1\2", 3)},
                                    {QStringLiteral("s"), QStringLiteral("<x>")},
                                    {QStringLiteral("s2"), QStringLiteral("ac")}}));
}

TEST(PropertyList, HostileInputIsRefused) {
    QByteArray laughs = "<!DOCTYPE plist [<!ENTITY a \"ha\">";
    for (char c = 'b'; c < 'k'; ++c)
        laughs += QByteArray("<!ENTITY ") + c + " \"" +
                  QByteArray("&a;").replace('a', c - 1).repeated(9) + "\">";
    const QByteArray many = QByteArray("<array>").repeated(100000);
    QList<QByteArray> cases{
        "",
        "bplist00\xd0",
        "<plist><dict>",
        document("<dict/>") + "x",
        document("<dict><key>a</key><string>\x01</string></dict>"),
        document("<dict><key>a</key><string>\xff</string></dict>"),
        document("<dict><key>a</key>" + many + "</dict>"),
        laughs + "]><plist><dict><key>a</key><string>&j;</string></dict></plist>",
        QByteArray(PropertyList::mostBytes + 1, ' '),
    };
    for (const QStringList& line : dataLines(QStringLiteral("foundation/bad_property_lists.tsv")))
        cases << document(line[0].toUtf8());
    for (const QByteArray& bytes : cases) {
        QString problem;
        EXPECT_FALSE(PropertyList::read(bytes, &problem)) << bytes.left(200).constData();
        EXPECT_FALSE(problem.isEmpty());
    }
}

}  // namespace
}  // namespace zephyrix
