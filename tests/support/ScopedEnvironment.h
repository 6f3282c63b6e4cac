#pragma once

#include <initializer_list>
#include <map>
#include <utility>

#include <QByteArray>

namespace zephyrix::testing {

/// Sets environment variables (null removes one) and puts them back when it ends.
class ScopedEnvironment {
  public:
    explicit ScopedEnvironment(
        std::initializer_list<std::pair<const char*, const char*>> variables) {
        for (const auto& [name, value] : variables) {
            before_[name] = qgetenv(name);
            set(name, QByteArray(value));
        }
    }
    ~ScopedEnvironment() {
        for (const auto& [name, value] : before_)
            set(name, value);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  private:
    static void set(const QByteArray& name, const QByteArray& value) {
        if (value.isNull())
            qunsetenv(name.constData());
        else
            qputenv(name.constData(), value);
    }

    std::map<QByteArray, QByteArray> before_;
};

}  // namespace zephyrix::testing
