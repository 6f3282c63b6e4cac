#include "LayoutReader.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include <QBoxLayout>
#include <QGridLayout>
#include <QMetaEnum>
#include <QMetaProperty>

#include "Theme.h"
#include "foundation/FatalError.h"

namespace zephyrix {

namespace {

/// Of an enumeration's key, or of flags' keys with "|" between them.
template <class Value>
Value valueOf(const QString& keys) {
    const auto names = QMetaEnum::fromType<Value>();
    return static_cast<Value>(names.keysToValue(keys.toLatin1().constData()));
}

/// The numbers of "0,0,1".
QList<int> numbersIn(const QString& list) {
    QList<int> numbers;
    for (const QString& number : list.split(QLatin1Char(','), Qt::SkipEmptyParts))
        numbers << number.toInt();
    return numbers;
}

/// Points of the panel in points of the screen, where texts may be larger. No limit stays none, and
/// a line stays a line.
int scaledLength(const QString& text) {
    const int points = text.toInt();
    return points <= 1 || points == QWIDGETSIZE_MAX ? points : Theme::scaled(points);
}

/// The lengths of the elements inside this one, in their order.
QList<int> lengthsInside(QXmlStreamReader& xml) {
    QList<int> numbers;
    while (xml.readNextStartElement())
        numbers << scaledLength(xml.readElementText());
    numbers.resize(4);  // a rectangle has the most
    return numbers;
}

QStringList textsInside(QXmlStreamReader& xml) {
    QStringList texts;
    while (xml.readNextStartElement())
        texts << xml.readElementText();
    return texts;
}

QSizePolicy sizePolicyIn(QXmlStreamReader& xml) {
    const auto attributes = xml.attributes();
    const auto policy = [&](const char* name) {
        return valueOf<QSizePolicy::Policy>(attributes.value(QLatin1String(name)).toString());
    };
    const QSizePolicy sizePolicy(policy("hsizetype"), policy("vsizetype"));
    xml.skipCurrentElement();
    return sizePolicy;
}

struct ValueRow {
    const char* element;
    QVariant (*read)(QXmlStreamReader& xml);
};

constexpr std::array valueTable{
    ValueRow{"number", [](auto& xml) { return QVariant(scaledLength(xml.readElementText())); }},
    ValueRow{"double", [](auto& xml) { return QVariant(xml.readElementText().toDouble()); }},
    ValueRow{"bool",
             [](auto& xml) { return QVariant(xml.readElementText() == QLatin1String("true")); }},
    ValueRow{"string", [](auto& xml) { return QVariant(xml.readElementText()); }},
    // The property itself knows what the keys mean.
    ValueRow{"enum", [](auto& xml) { return QVariant(xml.readElementText()); }},
    ValueRow{"set", [](auto& xml) { return QVariant(xml.readElementText()); }},
    ValueRow{"size",
             [](auto& xml) {
                 const auto numbers = lengthsInside(xml);
                 return QVariant(QSize(numbers[0], numbers[1]));
             }},
    ValueRow{"rect",
             [](auto& xml) {
                 const auto numbers = lengthsInside(xml);
                 return QVariant(QRect(numbers[0], numbers[1], numbers[2], numbers[3]));
             }},
    ValueRow{"stringlist", [](auto& xml) { return QVariant(textsInside(xml)); }},
    ValueRow{"sizepolicy", [](auto& xml) { return QVariant(sizePolicyIn(xml)); }},
};

struct MarginRow {
    const char* property;
    void (QMargins::*set)(int);
};

constexpr std::array marginTable{
    MarginRow{"leftMargin", &QMargins::setLeft},
    MarginRow{"topMargin", &QMargins::setTop},
    MarginRow{"rightMargin", &QMargins::setRight},
    MarginRow{"bottomMargin", &QMargins::setBottom},
};

bool setMargin(QLayout& layout, const QString& name, int points) {
    const auto row = std::ranges::find_if(
        marginTable, [&](const MarginRow& each) { return name == QLatin1String(each.property); });
    if (row == marginTable.end())
        return false;
    QMargins margins = layout.contentsMargins();
    (margins.*row->set)(points);
    layout.setContentsMargins(margins);
    return true;
}

bool setGridSpacing(QLayout& layout, const QString& name, int points) {
    auto* const grid = qobject_cast<QGridLayout*>(&layout);
    if (grid == nullptr)
        return false;
    if (name == QLatin1String("horizontalSpacing"))
        grid->setHorizontalSpacing(points);
    else if (name == QLatin1String("verticalSpacing"))
        grid->setVerticalSpacing(points);
    else
        return false;
    return true;
}

}  // namespace

struct LayoutReader::Cell {
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
    Qt::Alignment alignment;

    void add(QLayout& layout, QWidget* view) const {
        if (auto* const grid = qobject_cast<QGridLayout*>(&layout))
            grid->addWidget(view, row, column, rows, columns, alignment);
        else
            qobject_cast<QBoxLayout*>(&layout)->addWidget(view, 0, alignment);
    }
    void add(QLayout& layout, QLayout* inner) const {
        if (auto* const grid = qobject_cast<QGridLayout*>(&layout))
            grid->addLayout(inner, row, column, rows, columns, alignment);
        else
            qobject_cast<QBoxLayout*>(&layout)->addLayout(inner);
    }
    void add(QLayout& layout, QSpacerItem* gap) const {
        if (auto* const grid = qobject_cast<QGridLayout*>(&layout))
            grid->addItem(gap, row, column, rows, columns, alignment);
        else
            layout.addItem(gap);
    }
};

LayoutReader::LayoutReader(QString name, const QByteArray& description, MakeWidget makeWidget)
    : name_(std::move(name)), xml_(description), makeWidget_(std::move(makeWidget)) {}

QWidget* LayoutReader::read(QWidget* parent) {
    std::unique_ptr<QWidget> root;
    if (xml_.readNextStartElement() && xml_.name() == QLatin1String("ui"))
        while (xml_.readNextStartElement()) {
            if (xml_.name() == QLatin1String("widget") && !root)
                root.reset(readWidget(parent));
            else
                xml_.skipCurrentElement();  // for an editor or a compiler
        }
    if (xml_.hasError())
        return nullptr;
    return root.release();
}

QString LayoutReader::errorString() const {
    return xml_.hasError() ? xml_.errorString() : QStringLiteral("it describes no view");
}

QWidget* LayoutReader::readWidget(QWidget* parent) {
    const QString className = attribute("class");
    QWidget* const view = makeWidget_(className, parent);
    if (view == nullptr)
        stop(QStringLiteral("asks for the unknown class \"%1\"").arg(className));
    view->setObjectName(attribute("name"));
    while (xml_.readNextStartElement()) {
        if (xml_.name() == QLatin1String("property")) {
            readProperty(*view);
        } else if (xml_.name() == QLatin1String("widget")) {
            static_cast<void>(readWidget(view));
        } else if (xml_.name() == QLatin1String("layout")) {
            QLayout* const layout = makeLayout();
            view->setLayout(layout);
            readLayout(*view, *layout);
        } else {
            stopAtElement();
        }
    }
    return view;
}

void LayoutReader::readProperty(QObject& object) {
    const QByteArray name = attribute("name").toLatin1();
    const QVariant value = readValue();
    const QMetaObject* const kind = object.metaObject();
    const int index = kind->indexOfProperty(name.constData());
    if (!xml_.hasError() && (index < 0 || !kind->property(index).write(&object, value)))
        stop(QStringLiteral("gives \"%1\" a \"%2\" that it cannot have")
                 .arg(object.objectName(), QLatin1String(name)));
}

QVariant LayoutReader::readValue() {
    if (!xml_.readNextStartElement())
        return {};
    const auto row = std::ranges::find_if(valueTable, [this](const ValueRow& each) {
        return xml_.name() == QLatin1String(each.element);
    });
    if (row == valueTable.end())
        stopAtElement();
    QVariant value = row->read(xml_);
    xml_.skipCurrentElement();  // to the end of the property
    return value;
}

QLayout* LayoutReader::makeLayout() const {
    const QString className = attribute("class");
    QLayout* layout = nullptr;
    if (className == QLatin1String("QHBoxLayout"))
        layout = new QHBoxLayout;
    else if (className == QLatin1String("QVBoxLayout"))
        layout = new QVBoxLayout;
    else if (className == QLatin1String("QGridLayout"))
        layout = new QGridLayout;
    else
        stop(QStringLiteral("asks for the unknown layout \"%1\"").arg(className));
    layout->setObjectName(attribute("name"));
    return layout;
}

void LayoutReader::readLayout(QWidget& view, QLayout& layout) {
    const QList<int> stretch = numbersIn(attribute("stretch"));
    const QList<int> rowStretch = numbersIn(attribute("rowstretch"));
    const QList<int> columnStretch = numbersIn(attribute("columnstretch"));
    while (xml_.readNextStartElement()) {
        if (xml_.name() == QLatin1String("property"))
            readLayoutProperty(layout);
        else if (xml_.name() == QLatin1String("item"))
            readItem(view, layout);
        else
            stopAtElement();
    }
    if (auto* const box = qobject_cast<QBoxLayout*>(&layout))
        for (int index = 0; index < stretch.size(); ++index)
            box->setStretch(index, stretch[index]);
    if (auto* const grid = qobject_cast<QGridLayout*>(&layout)) {
        for (int row = 0; row < rowStretch.size(); ++row)
            grid->setRowStretch(row, rowStretch[row]);
        for (int column = 0; column < columnStretch.size(); ++column)
            grid->setColumnStretch(column, columnStretch[column]);
    }
}

void LayoutReader::readLayoutProperty(QLayout& layout) {
    const QString name = attribute("name");
    const int points = readValue().toInt();
    if (name == QLatin1String("spacing"))
        layout.setSpacing(points);
    else if (!setMargin(layout, name, points) && !setGridSpacing(layout, name, points))
        stop(QStringLiteral("gives the layout \"%1\" a \"%2\" that it cannot have")
                 .arg(layout.objectName(), name));
}

void LayoutReader::readItem(QWidget& view, QLayout& layout) {
    const Cell cell = cellOfItem();
    if (!xml_.readNextStartElement())
        return;
    if (xml_.name() == QLatin1String("widget")) {
        cell.add(layout, readWidget(&view));
    } else if (xml_.name() == QLatin1String("spacer")) {
        cell.add(layout, readSpacer());
    } else if (xml_.name() == QLatin1String("layout")) {
        QLayout* const inner = makeLayout();
        cell.add(layout, inner);
        readLayout(view, *inner);
    } else {
        stopAtElement();
    }
    xml_.skipCurrentElement();  // to the end of the item
}

LayoutReader::Cell LayoutReader::cellOfItem() const {
    const auto number = [this](const char* name, int otherwise) {
        const QString text = attribute(name);
        return text.isEmpty() ? otherwise : text.toInt();
    };
    const QString alignment = attribute("alignment");
    return {number("row", 0), number("column", 0), number("rowspan", 1), number("colspan", 1),
            alignment.isEmpty() ? Qt::Alignment() : valueOf<Qt::Alignment>(alignment)};
}

QSpacerItem* LayoutReader::readSpacer() {
    bool isVertical = false;
    auto kind = QSizePolicy::Expanding;
    QSize size;
    while (xml_.readNextStartElement()) {
        const QString name = attribute("name");
        const QVariant value = readValue();
        if (name == QLatin1String("orientation"))
            isVertical = value.toString() == QLatin1String("Qt::Vertical");
        else if (name == QLatin1String("sizeType"))
            kind = valueOf<QSizePolicy::Policy>(value.toString());
        else if (name == QLatin1String("sizeHint"))
            size = value.toSize();
        else
            stop(QStringLiteral("gives a spacer a \"%1\" that it cannot have").arg(name));
    }
    return new QSpacerItem(size.width(), size.height(), isVertical ? QSizePolicy::Minimum : kind,
                           isVertical ? kind : QSizePolicy::Minimum);
}

QString LayoutReader::attribute(const char* name) const {
    return xml_.attributes().value(QLatin1String(name)).toString();
}

void LayoutReader::stop(const QString& mistake) const {
    fatalError(QStringLiteral("the layout \"%1\" %2").arg(name_, mistake));
}

void LayoutReader::stopAtElement() const {
    stop(QStringLiteral("has an unknown element <%1>").arg(xml_.name()));
}

}  // namespace zephyrix
