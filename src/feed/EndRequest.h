#pragma once

namespace zephyrix {

/// The wish of the outside that the program ends: SIGTERM, SIGINT and, where asked for, the end of
/// standard input, which comes when the program at its other end is gone, however it ended. Made on
/// the main thread before any other thread is started, so that the signals come here alone.
class EndRequest {
  public:
    enum class Input { Ignored, Watched };

    explicit EndRequest(Input input);
    ~EndRequest();
    EndRequest(const EndRequest&) = delete;
    EndRequest& operator=(const EndRequest&) = delete;

    void wait() const;

  private:
    Input input_;
    int signals_;  // file descriptor
};

}  // namespace zephyrix
