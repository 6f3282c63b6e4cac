#include "Nib.h"

#include <memory>
#include <utility>

#include <QBuffer>
#include <QCoreApplication>
#include <QHash>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include "Hairline.h"
#include "ImageView.h"
#include "Label.h"
#include "TableCell.h"
#include "TableView.h"
#include "TextButton.h"
#include "View.h"
#include "foundation/Bundle.h"
#include "foundation/Log.h"

namespace zephyrix {

namespace {

using Factories = QHash<QString, Nib::Factory>;

template <class T>
Nib::Factory factoryOf() {
    return [](QWidget* parent) { return new T(parent); };
}

Factories& factories() {
    static Factories known = {
        {QStringLiteral("Hairline"), factoryOf<Hairline>()},
        {QStringLiteral("ImageView"), factoryOf<ImageView>()},
        {QStringLiteral("Label"), factoryOf<Label>()},
        {QStringLiteral("TableCell"), factoryOf<TableCell>()},
        {QStringLiteral("TableView"), factoryOf<TableView>()},
        {QStringLiteral("TextButton"), factoryOf<TextButton>()},
        {QStringLiteral("View"), factoryOf<View>()},
    };
    return known;
}

// Knows the project's classes by name; everything else is the toolkit's own.
class Loader : public QUiLoader {
  public:
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        const auto factory = factories().constFind(className);
        QWidget* widget = nullptr;
        if (factory != factories().constEnd())
            widget = (*factory)(parent);
        else if (availableWidgets().contains(className))
            return QUiLoader::createWidget(className, parent, name);
        else
            fatalError(QStringLiteral("a layout asks for the unknown class \"%1\"").arg(className));
        widget->setObjectName(name);
        return widget;
    }
};

// The constructor would load every Designer plugin of the machine (milliseconds and megabytes) for
// widgets that no layout here uses, so it is shown an empty library path.
std::unique_ptr<Loader> makeLoader() {
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto loader = std::make_unique<Loader>();
    loader->clearPluginPaths();
    QCoreApplication::setLibraryPaths(paths);
    return loader;
}

// Without what only an editor needs: blanks between elements, comments, and the list of own
// classes, which the loader knows by itself. Reading the description is most of the work of an
// instance. A description that is no XML stays as it is, for the loader to complain about.
QByteArray withoutEditorsParts(const QByteArray& description) {
    QByteArray compact;
    QXmlStreamReader reader(description);
    QXmlStreamWriter writer(&compact);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("customwidgets"))
            reader.skipCurrentElement();
        else if (!reader.isWhitespace() && !reader.isComment() && !reader.hasError())
            writer.writeCurrentToken(reader);
    }
    return reader.hasError() ? description : compact;
}

template <class Visit>
void visitChildrenFirst(QWidget* root, const Visit& visit) {
    const auto children = root->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children)
        visitChildrenFirst(child, visit);
    if (auto* object = dynamic_cast<NibObject*>(root))
        visit(*object);
}

}  // namespace

Nib::Nib(QString name) : name_(std::move(name)) {
    description_ = withoutEditorsParts(Bundle::main().layout(name_).value_or(QByteArray()));
}

Nib::Nib(QString name, const QByteArray& description)
    : name_(std::move(name)), description_(withoutEditorsParts(description)) {}

QWidget* Nib::instantiate(QWidget* parent) const {
    static const std::unique_ptr<Loader> loader = makeLoader();
    if (description_.isEmpty())
        return nullptr;
    QBuffer buffer;
    buffer.setData(description_);
    buffer.open(QIODevice::ReadOnly);
    QWidget* root = loader->load(&buffer, parent);
    if (root == nullptr) {
        logLine(QStringLiteral("layout \"%1\": %2").arg(name_, loader->errorString()));
        return nullptr;
    }
    visitChildrenFirst(root, [](NibObject& object) { object.connectOutlets(); });
    visitChildrenFirst(root, [](NibObject& object) { object.awakeFromNib(); });
    return root;
}

void Nib::registerClass(const char* qualifiedName, const Factory& factory) {
    const QString name = QString::fromLatin1(qualifiedName);
    factories().insert(name.section(QStringLiteral("::"), -1), factory);
}

}  // namespace zephyrix
