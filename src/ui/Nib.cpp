#include "Nib.h"

#include <utility>

#include <QHash>

#include "Hairline.h"
#include "ImageView.h"
#include "Label.h"
#include "LayoutReader.h"
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
        {QStringLiteral("QWidget"), factoryOf<QWidget>()},
        {QStringLiteral("TableCell"), factoryOf<TableCell>()},
        {QStringLiteral("TableView"), factoryOf<TableView>()},
        {QStringLiteral("TextButton"), factoryOf<TextButton>()},
        {QStringLiteral("View"), factoryOf<View>()},
    };
    return known;
}

QWidget* newWidget(const QString& className, QWidget* parent) {
    const auto factory = factories().constFind(className);
    return factory == factories().constEnd() ? nullptr : (*factory)(parent);
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

Nib::Nib(QString name) : name_(std::move(name)) {}

Nib::Nib(QString name, const QByteArray& description)
    : name_(std::move(name)), text_(description) {}

const XmlElement* Nib::description() const {
    if (!text_)
        text_ = Bundle::main().layout(name_).value_or(QByteArray());
    if (!tree_ && !text_->isEmpty()) {
        QString problem;
        tree_ = readXml(*text_, problem);
        if (!tree_)
            logLine(QStringLiteral("layout \"%1\": %2").arg(name_, problem));
    }
    return tree_ ? &*tree_ : nullptr;
}

QWidget* Nib::instantiate(QWidget* parent) const {
    const XmlElement* const description = this->description();
    if (description == nullptr)
        return nullptr;
    QWidget* const root = LayoutReader(name_, newWidget).makeRoot(*description, parent);
    if (root == nullptr) {
        logLine(QStringLiteral("layout \"%1\": it describes no view").arg(name_));
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
