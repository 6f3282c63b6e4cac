#pragma once

#include <exception>
#include <string>
#include <utility>

#include <QString>
#include <QVariantMap>

namespace zephyrix {

/// An error that is told apart by its name ("NullPhenomenon"), with a reason and, where the raising
/// operation says so, further values.
class NamedException : public std::exception {
  public:
    NamedException(QString name, QString reason, QVariantMap userInfo = {})
        : name_(std::move(name)),
          reason_(std::move(reason)),
          userInfo_(std::move(userInfo)),
          text_((name_ + QStringLiteral(": ") + reason_).toStdString()) {}

    [[nodiscard]] const QString& name() const noexcept { return name_; }
    [[nodiscard]] const QString& reason() const noexcept { return reason_; }
    [[nodiscard]] const QVariantMap& userInfo() const noexcept { return userInfo_; }
    [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

  private:
    QString name_;
    QString reason_;
    QVariantMap userInfo_;
    std::string text_;
};

}  // namespace zephyrix
