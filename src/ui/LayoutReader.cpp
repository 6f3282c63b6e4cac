#include "LayoutReader.h"

#include <algorithm>
#include <array>
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
QList<int> lengthsInside(const XmlElement& value) {
    QList<int> numbers;
    for (const XmlElement& length : value.children)
        numbers << scaledLength(length.text);
    numbers.resize(4);  // a rectangle has the most
    return numbers;
}

QStringList textsInside(const XmlElement& value) {
    QStringList texts;
    for (const XmlElement& text : value.children)
        texts << text.text;
    return texts;
}

QSizePolicy sizePolicyIn(const XmlElement& value) {
    const auto policy = [&](const char* name) {
        return valueOf<QSizePolicy::Policy>(value.attribute(name));
    };
    return {policy("hsizetype"), policy("vsizetype")};
}

struct ValueRow {
    const char* element;
    QVariant (*read)(const XmlElement& value);
};

constexpr std::array valueTable{
    ValueRow{"number", [](const auto& value) { return QVariant(scaledLength(value.text)); }},
    ValueRow{"double", [](const auto& value) { return QVariant(value.text.toDouble()); }},
    ValueRow{"bool",
             [](const auto& value) { return QVariant(value.text == QLatin1String("true")); }},
    ValueRow{"string", [](const auto& value) { return QVariant(value.text); }},
    // The property itself knows what the keys mean.
    ValueRow{"enum", [](const auto& value) { return QVariant(value.text); }},
    ValueRow{"set", [](const auto& value) { return QVariant(value.text); }},
    ValueRow{"size",
             [](const auto& value) {
                 const auto numbers = lengthsInside(value);
                 return QVariant(QSize(numbers[0], numbers[1]));
             }},
    ValueRow{"rect",
             [](const auto& value) {
                 const auto numbers = lengthsInside(value);
                 return QVariant(QRect(numbers[0], numbers[1], numbers[2], numbers[3]));
             }},
    ValueRow{"stringlist", [](const auto& value) { return QVariant(textsInside(value)); }},
    ValueRow{"sizepolicy", [](const auto& value) { return QVariant(sizePolicyIn(value)); }},
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

void setStretches(const XmlElement& element, QLayout& layout) {
    if (auto* const box = qobject_cast<QBoxLayout*>(&layout)) {
        const QList<int> stretch = numbersIn(element.attribute("stretch"));
        for (int index = 0; index < stretch.size(); ++index)
            box->setStretch(index, stretch[index]);
    }
    if (auto* const grid = qobject_cast<QGridLayout*>(&layout)) {
        const QList<int> rows = numbersIn(element.attribute("rowstretch"));
        for (int row = 0; row < rows.size(); ++row)
            grid->setRowStretch(row, rows[row]);
        const QList<int> columns = numbersIn(element.attribute("columnstretch"));
        for (int column = 0; column < columns.size(); ++column)
            grid->setColumnStretch(column, columns[column]);
    }
}

/// Where in its layout an item is.
struct Cell {
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
    Qt::Alignment alignment;

    explicit Cell(const XmlElement& item) {
        const auto number = [&](const char* name, int otherwise) {
            const QString text = item.attribute(name);
            return text.isEmpty() ? otherwise : text.toInt();
        };
        row = number("row", 0);
        column = number("column", 0);
        rows = number("rowspan", 1);
        columns = number("colspan", 1);
        if (const QString keys = item.attribute("alignment"); !keys.isEmpty())
            alignment = valueOf<Qt::Alignment>(keys);
    }

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

}  // namespace

LayoutReader::LayoutReader(QString name, const MakeWidget& makeWidget)
    : name_(std::move(name)), makeWidget_(makeWidget) {}

QWidget* LayoutReader::makeRoot(const XmlElement& description, QWidget* parent) const {
    if (!description.is("ui"))
        return nullptr;
    const auto root = std::ranges::find(description.children, "widget", &XmlElement::name);
    return root == description.children.end() ? nullptr : makeView(*root, parent);
}

QWidget* LayoutReader::makeView(const XmlElement& element, QWidget* parent) const {
    const QString className = element.attribute("class");
    QWidget* const view = makeWidget_(className, parent);
    if (view == nullptr)
        stop(QStringLiteral("asks for the unknown class \"%1\"").arg(className));
    view->setObjectName(element.attribute("name"));
    for (const XmlElement& part : element.children) {
        if (part.is("property")) {
            setProperty(*view, part);
        } else if (part.is("widget")) {
            static_cast<void>(makeView(part, view));
        } else if (part.is("layout")) {
            QLayout* const layout = makeLayout(part);
            view->setLayout(layout);
            fillLayout(part, *view, *layout);
        } else {
            stopAt(part);
        }
    }
    return view;
}

void LayoutReader::setProperty(QObject& object, const XmlElement& property) const {
    const QByteArray name = property.attribute("name").toLatin1();
    const QMetaObject* const kind = object.metaObject();
    const int index = kind->indexOfProperty(name.constData());
    if (index < 0 || !kind->property(index).write(&object, valueIn(property)))
        stop(QStringLiteral("gives \"%1\" a \"%2\" that it cannot have")
                 .arg(object.objectName(), QLatin1String(name)));
}

QVariant LayoutReader::valueIn(const XmlElement& property) const {
    if (property.children.empty())
        return {};
    const XmlElement& value = property.children.front();
    const auto row = std::ranges::find_if(
        valueTable, [&](const ValueRow& each) { return value.is(each.element); });
    if (row == valueTable.end())
        stopAt(value);
    return row->read(value);
}

QLayout* LayoutReader::makeLayout(const XmlElement& element) const {
    const QString className = element.attribute("class");
    QLayout* layout = nullptr;
    if (className == QLatin1String("QHBoxLayout"))
        layout = new QHBoxLayout;
    else if (className == QLatin1String("QVBoxLayout"))
        layout = new QVBoxLayout;
    else if (className == QLatin1String("QGridLayout"))
        layout = new QGridLayout;
    else
        stop(QStringLiteral("asks for the unknown layout \"%1\"").arg(className));
    layout->setObjectName(element.attribute("name"));
    return layout;
}

void LayoutReader::fillLayout(const XmlElement& element, QWidget& view, QLayout& layout) const {
    for (const XmlElement& part : element.children) {
        if (part.is("property"))
            setLayoutProperty(layout, part);
        else if (part.is("item"))
            addItem(part, view, layout);
        else
            stopAt(part);
    }
    setStretches(element, layout);
}

void LayoutReader::setLayoutProperty(QLayout& layout, const XmlElement& property) const {
    const QString name = property.attribute("name");
    const int points = valueIn(property).toInt();
    if (name == QLatin1String("spacing"))
        layout.setSpacing(points);
    else if (!setMargin(layout, name, points) && !setGridSpacing(layout, name, points))
        stop(QStringLiteral("gives the layout \"%1\" a \"%2\" that it cannot have")
                 .arg(layout.objectName(), name));
}

void LayoutReader::addItem(const XmlElement& item, QWidget& view, QLayout& layout) const {
    if (item.children.empty())
        return;
    const Cell cell(item);
    const XmlElement& content = item.children.front();
    if (content.is("widget")) {
        cell.add(layout, makeView(content, &view));
    } else if (content.is("spacer")) {
        cell.add(layout, makeSpacer(content));
    } else if (content.is("layout")) {
        QLayout* const inner = makeLayout(content);
        cell.add(layout, inner);
        fillLayout(content, view, *inner);
    } else {
        stopAt(content);
    }
}

QSpacerItem* LayoutReader::makeSpacer(const XmlElement& element) const {
    bool isVertical = false;
    auto kind = QSizePolicy::Expanding;
    QSize size;
    for (const XmlElement& property : element.children) {
        const QString name = property.attribute("name");
        const QVariant value = valueIn(property);
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

void LayoutReader::stop(const QString& mistake) const {
    fatalError(QStringLiteral("the layout \"%1\" %2").arg(name_, mistake));
}

void LayoutReader::stopAt(const XmlElement& element) const {
    stop(QStringLiteral("has an unknown element <%1>").arg(QLatin1String(element.name)));
}

}  // namespace zephyrix
