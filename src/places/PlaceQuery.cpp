#include "PlaceQuery.h"

#include <QByteArrayList>

namespace zephyrix {

namespace {

constexpr qsizetype mostWords = 8;

}  // namespace

PlaceQuery::PlaceQuery(const QString& folded) {
    const QByteArrayList words = folded.toUtf8().split(' ').mid(0, mostWords);
    whole_ = words.join(' ');
    const QByteArray allWords = '"' + words.join("\" AND \"") + "\" *";
    expressions_ = {"name : ^ \"" + whole_ + "\" *", "name : (" + allWords + ')', allWords};
}

}  // namespace zephyrix
