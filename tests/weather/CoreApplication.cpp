// Gives the test program the QCoreApplication that network access needs.
#include <memory>

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace {

class CoreApplication : public ::testing::Environment {
  public:
    void SetUp() override { application_ = std::make_unique<QCoreApplication>(count_, arguments_); }
    void TearDown() override { application_.reset(); }

  private:
    char name_[14] = "zephyrix-test";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::unique_ptr<QCoreApplication> application_;
};

[[maybe_unused]] const ::testing::Environment* const registered =
    ::testing::AddGlobalTestEnvironment(new CoreApplication);

}  // namespace
