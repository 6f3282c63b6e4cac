// Another language at the settings files: the example of docs/settings.md as it stands there, and
// what Python's own reader and writer of property lists make of ours.
#include <QCoreApplication>
#include <QDateTime>
#include <gtest/gtest.h>

#include "SettingsFolder.h"
#include "support/DataLines.h"
#include "support/Files.h"
#include "support/Programs.h"
#include "support/TestHome.h"

namespace zephyrix {
namespace {

using namespace zephyrix::testing;

/// The first Python program in the document.
QByteArray documentedExample() {
    const QByteArray document = contentOf(QStringLiteral(SOURCE_DIR "/docs/settings.md"));
    const QByteArray begin = "```python\n";
    const auto start = document.indexOf(begin);
    if (start < 0)
        return {};
    const auto length = document.indexOf("```", start + begin.size()) - start - begin.size();
    return document.mid(start + begin.size(), length);
}

class SettingsDocument : public ::testing::Test {
  protected:
    /// Runs a Python program to its end; what it printed.
    static QByteArray runPython(const QByteArray& program, const QString& argument = {}) {
        const QString file = freshFolder() + QStringLiteral("/program.py");
        overwrite(file, program);
        const Outcome python = runCommand(QStringLiteral("python3 %1 %2").arg(file, argument));
        EXPECT_EQ(python.exitCode, 0) << python.err.constData();
        return python.out;
    }

    int argc_ = 0;
    QCoreApplication application_{argc_, nullptr};
    SettingsFolder folder_;
};

TEST_F(SettingsDocument, ItsExampleStoresAPlaceAndKeepsTheRest) {
    const QByteArray example = documentedExample();
    ASSERT_FALSE(example.isEmpty());
    runPython(example);  // in a home without any settings
    {
        const auto store = openSuite();
        EXPECT_EQ(store->dictionary(QStringLiteral("location"))->value(QStringLiteral("name")),
                  QStringLiteral("Zürich"));
        store->set(QStringLiteral("wind"), 3);
        store->set(QStringLiteral("location"), QVariantMap{});
    }
    runPython(example);
    const auto store = openSuite();
    const auto place = store->dictionary(QStringLiteral("location"));
    ASSERT_TRUE(place);
    EXPECT_EQ(place->value(QStringLiteral("uid")), QVariant(18230001));
    EXPECT_EQ(place->value(QStringLiteral("latitude")), QVariant(47.37));
    EXPECT_EQ(place->value(QStringLiteral("timezone")), QStringLiteral("Europe/Zurich"));
    EXPECT_EQ(store->integer(QStringLiteral("wind")), 3);
}

TEST_F(SettingsDocument, EachTypeSurvivesAForeignReaderAndWriter) {
    const QVariantMap values{
        {QStringLiteral("text"), QStringLiteral("Zürich\r\n<&> 🌦 ")},
        {QStringLiteral("integer"), -7LL},
        {QStringLiteral("large"), QVariant::fromValue(~0ULL)},
        {QStringLiteral("real"), 52.529998779296875},
        {QStringLiteral("tiny"), 5e-324},
        {QStringLiteral("true"), true},
        {QStringLiteral("date"), QDateTime(QDate(2015, 3, 29), QTime(2, 30), Qt::UTC)},
        {QStringLiteral("data"), QByteArray(200, '\xfe')},
        {QStringLiteral("list"), QVariantList{1LL, false, QVariantMap{}, QVariantList{}}},
    };
    const auto store = openSuite();
    store->set(QStringLiteral("values"), values);
    ASSERT_TRUE(store->synchronize());
    const QByteArray printed = runPython(
        "import plistlib, sys\n"
        "suite = plistlib.load(open(sys.argv[1], 'rb'))\n"
        "for key, value in sorted(suite['values'].items()): print(key, ascii(value))\n"
        "plistlib.dump(suite, open(sys.argv[1], 'wb'))\n",
        store->fileName());
    EXPECT_EQ(printed, dataFile(QStringLiteral("foundation/python_values.txt")));
    const auto again = openSuite()->dictionary(QStringLiteral("values"));
    ASSERT_TRUE(again);
    for (auto value = values.begin(); value != values.end(); ++value)
        EXPECT_EQ(again->value(value.key()).typeId(), value->typeId()) << qPrintable(value.key());
    QVariantMap expected = values;  // Python writes a carriage return as a line feed
    expected.insert(QStringLiteral("text"), QStringLiteral("Zürich\n<&> 🌦 "));
    EXPECT_EQ(*again, expected);
}

}  // namespace
}  // namespace zephyrix
