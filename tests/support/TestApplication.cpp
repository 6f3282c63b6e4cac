// Linked into a test program, makes the QApplication that its tests run in; it ends before main()
// does.
#include <memory>

#include <QApplication>
#include <gtest/gtest.h>

namespace {

class TestApplication : public ::testing::Environment {
  public:
    void SetUp() override { application_ = std::make_unique<QApplication>(count_, arguments_); }
    void TearDown() override { application_.reset(); }

  private:
    char name_[14] = "zephyrix-test";
    char* arguments_[2] = {name_, nullptr};
    int count_ = 1;
    std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] const ::testing::Environment* const registered =
    ::testing::AddGlobalTestEnvironment(new TestApplication);

}  // namespace
