#pragma once

#include <QByteArray>

namespace zephyrix {

/// The user's regional conventions, as the environment has them. The one place where they are read.
///
/// A category is decided as in every POSIX program: LC_ALL, else the category's own variable, else
/// LANG; a variable that is set but empty counts as unset. "C", "POSIX" and nothing at all are
/// "en_US_POSIX". The encoding is dropped ("de_AT.UTF-8" is "de_AT"), and so is a modifier, except
/// that "@latin" and "@cyrillic" choose the script. The language of the texts is another matter:
/// Bundle decides it.
///
/// Names are ICU's. Any thread, as long as nobody changes the environment.
class UserLocale {
  public:
    /// For decimal separators, signs and digits: LC_NUMERIC.
    [[nodiscard]] static QByteArray forNumbers();
    /// For clock times and names of days: LC_TIME.
    [[nodiscard]] static QByteArray forDates();

  private:
    friend class ReplacedUserLocale;
    static void replace(const QByteArray& name);
};

/// While it lives, all conventions are those of one locale ("de_DE"); then the environment's again.
/// Formatters that were used before keep what they had. One at a time. For tests.
class ReplacedUserLocale {
  public:
    explicit ReplacedUserLocale(const QByteArray& name);
    ~ReplacedUserLocale();
    ReplacedUserLocale(const ReplacedUserLocale&) = delete;
    ReplacedUserLocale& operator=(const ReplacedUserLocale&) = delete;
};

}  // namespace zephyrix
