// A file where a settings store is expected.
#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "Surroundings.h"
#include "foundation/PropertyList.h"
#include "foundation/UserDefaults.h"

namespace {

using namespace zephyrix;
using namespace zephyrix::fuzz;

const QString suiteName = QStringLiteral("fuzz");
const QString ownKey = QStringLiteral("wind");
constexpr qlonglong ownValue = 2;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void checkWriting(const QVariantMap& values) {
    const auto written = PropertyList::write(values);
    expect(written.has_value(), "what was read can be written");
    const auto again = PropertyList::read(*written);
    expect(again.has_value(), "what was written can be read");
    expect(PropertyList::write(*again) == written, "writing again gives the same bytes");
}

void readAll(const UserDefaults& store, const QVariantMap& values) {
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        static_cast<void>(store.boolean(entry.key()));
        static_cast<void>(store.integer(entry.key()));
        expect(store.object(entry.key()).typeId() == entry.value().typeId(), "types are kept");
        expect(store.dictionary(entry.key()).has_value() ==
                   (entry.value().typeId() == QMetaType::QVariantMap),
               "a dictionary reads as one");
    }
}

/// A change keeps the other keys of a sound file, and a damaged file as it was, beside the new one.
void checkChange(const QByteArray& before, const std::optional<QVariantMap>& values) {
    const auto store = UserDefaults::suite(suiteName);
    readAll(*store, values.value_or(QVariantMap()));
    store->set(ownKey, ownValue);
    expect(store->synchronize(), "a change is saved");
    const auto after = PropertyList::read(contentOf(store->fileName()));
    expect(after && after->value(ownKey) == QVariant(ownValue), "a change is in the file");
    if (!values) {
        expect(contentOf(store->fileName() + QStringLiteral(".corrupt-1")) == before,
               "a damaged file is kept aside");
        return;
    }
    QVariantMap expected = *values;
    expected.insert(ownKey, ownValue);
    expect(after->keys() == expected.keys(), "the other keys stay");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = bytesOf(data, size);
    const auto values = PropertyList::read(bytes);
    if (values)
        checkWriting(*values);
    const QString folder = home() + QStringLiteral("/config/zephyrix");
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    writeFile(folder + QStringLiteral("/fuzz.plist"), bytes);
    checkChange(bytes, values);
    QCoreApplication::sendPostedEvents();  // what the store left to an event loop
    return 0;
}
