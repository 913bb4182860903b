// A shell of its own for each test, with a clock that is set by hand and a message box that
// remembers.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/platform.h"
#include "host/run_time_failure.h"
#include "host/timer_queue.h"
#include "shell/shell_state.h"
#include "text/options.h"

namespace quorvex {

/// Answers as told, and keeps what it was asked.
class Scripted_Box final : public Message_Box {
 public:
  struct Message {
    std::string title;
    std::string text;
    Message_Icon icon;
    Message_Buttons buttons;
  };

  Message_Answer show(std::string_view title, std::string_view text, Message_Icon icon,
                      Message_Buttons buttons) override {
    messages.push_back({std::string(title), std::string(text), icon, buttons});
    return buttons == Message_Buttons::ok ? Message_Answer::ok : answer;
  }

  Message_Answer answer = Message_Answer::no;
  std::vector<Message> messages;
};

/// A store that can be read, and no more.
class Frozen_Settings final : public Settings_Store {
 public:
  explicit Frozen_Settings(std::optional<std::string> stored) : stored_(std::move(stored)) {}
  std::optional<std::string> read(std::string_view, std::string_view, std::string_view) override {
    return stored_;
  }
  void write(std::string_view, std::string_view, std::string_view, std::string_view) override {
    throw Run_Time_Failure(Failure_Number::invalid_call, "The disk is full.");
  }

 private:
  std::optional<std::string> stored_;
};

class Shell_Test : public testing::Test {
 protected:
  Shell_Test() {
    Shell() = Shell_State();
    Current_Platform().settings = Settings_In_Memory();
    Current_Platform().timers = Timer_Queue([this] { return now_; });
    Current_Platform().message_box = box_;
  }
  ~Shell_Test() override {
    Shell() = Shell_State();
    Current_Platform() = before_;
    Set_Default_MaxSD(100);
  }

  void after(int milliseconds) {
    now_ += std::chrono::milliseconds(milliseconds);
    Current_Platform().timers->run_due();
  }

  static std::optional<std::string> stored() {
    return Current_Platform().settings->read("Quorvex", "Options", "MaxSD");
  }
  static void store(std::string_view text) {
    Current_Platform().settings->write("Quorvex", "Options", "MaxSD", text);
  }

  std::shared_ptr<Scripted_Box> box_ = std::make_shared<Scripted_Box>();

 private:
  Platform before_ = Current_Platform();
  std::chrono::steady_clock::time_point now_;
};

}  // namespace quorvex
