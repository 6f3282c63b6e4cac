#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>
#include <QWidget>

#include "XmlTree.h"
#include "foundation/FatalError.h"

namespace zephyrix {

/// A view that is made from an interface description. After the whole tree is there, each such
/// view is told in this order, children before their parents: connectOutlets(), then, in a second
/// round, awakeFromNib().
class NibObject {
  public:
    virtual ~NibObject() = default;
    /// Finds the views that the description holds for this one; see outlet().
    virtual void connectOutlets() {}
    virtual void awakeFromNib() {}

  protected:
    NibObject() = default;
    NibObject(const NibObject&) = default;
    NibObject& operator=(const NibObject&) = default;
};

/// An interface description (a .ui file of the bundle): read once, instantiated as often as wanted.
///
///     Nib::registerClass<ObsCell>();
///     const Nib nib(QStringLiteral("ObsCell"));
///     ObsCell* cell = nib.instantiate<ObsCell>(parent);
///
/// Its numbers are points of the panel, and so many points of the screen as the theme's text scale
/// says at the time of reading.
///
/// Own classes must be registered before; the pieces of this folder are. An unknown class stops the
/// process with a line that names it and the description.
class Nib {
  public:
    /// A name without a description makes a nib without one: instantiate() gives null.
    explicit Nib(QString name);
    /// A description that is at hand already, with a name for messages.
    Nib(QString name, const QByteArray& description);

    /// The root view, or null when there is no description or it cannot be read (one line in the
    /// log says why).
    [[nodiscard]] QWidget* instantiate(QWidget* parent = nullptr) const;
    /// The same where the root must be there and of a class; stops the process otherwise.
    template <class T>
    [[nodiscard]] T* instantiate(QWidget* parent) const;

    [[nodiscard]] const QString& name() const noexcept { return name_; }

    using Factory = std::function<QWidget*(QWidget* parent)>;
    /// Makes the class known to descriptions under its plain name, without namespace.
    template <class T>
    static void registerClass();
    static void registerClass(const char* qualifiedName, const Factory& factory);

  private:
    /// Null when there is none.
    [[nodiscard]] const XmlElement* description() const;

    QString name_;
    // Read from the bundle, and into a tree, when they are needed.
    mutable std::optional<QByteArray> text_;
    mutable std::optional<XmlElement> tree_;
};

/// The view of this name below `root`. A missing one, or one of another class, is a mistake in the
/// description and stops the process with a line that names it.
template <class T>
[[nodiscard]] T* outlet(const QWidget* root, const QString& name) {
    T* view = root->findChild<T*>(name);
    if (view == nullptr)
        fatalError(QStringLiteral("the layout of %1 has no %2 called \"%3\"")
                       .arg(QLatin1String(root->metaObject()->className()),
                            QLatin1String(T::staticMetaObject.className()), name));
    return view;
}

template <class T>
T* Nib::instantiate(QWidget* parent) const {
    QWidget* root = instantiate(parent);
    T* view = qobject_cast<T*>(root);
    if (view == nullptr)
        fatalError(QStringLiteral("the layout \"%1\" gives no %2")
                       .arg(name_, QLatin1String(T::staticMetaObject.className())));
    return view;
}

template <class T>
void Nib::registerClass() {
    registerClass(T::staticMetaObject.className(), [](QWidget* parent) { return new T(parent); });
}

}  // namespace zephyrix
