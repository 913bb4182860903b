// The parts of the platform on Windows, one file each.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "host/platform.h"

namespace quorvex {

/// The user's locale, asked anew at each look: it can change while a spreadsheet runs.
std::shared_ptr<Locale_Source> User_Locale();

/// The user's part of the registry, below the key where programs of the spreadsheet's own language
/// keep their settings.
std::shared_ptr<Settings_Store> Registry_Settings();

/// Timers whose calls the thread that armed them runs when it takes its messages.
std::shared_ptr<Timer_Service> Thread_Timers();

/// How many timers are armed or run their calls: as long as any does, the library has to stay
/// loaded.
std::size_t Count_Pending_Timers();
inline bool Has_Pending_Timers() {
  return Count_Pending_Timers() > 0;
}

std::shared_ptr<Message_Box> Window_Message_Box();

/// Breaks a calculation off when the user holds Escape or Ctrl-Break down in a window of this
/// process. No message is taken from the queue: what the user does meanwhile waits.
std::shared_ptr<Yielder> Break_Keys();

/// Tells those that watch the keys that a call begins: what is down by then breaks nothing off
/// before it has been up.
void Ignore_Keys_Held_Down();

/// What the system has left, within the limits of the process and of its job.
std::shared_ptr<Memory_Gauge> System_Memory();

std::shared_ptr<Letter_Case> System_Letters();

/// Loads libraries from the folder of this one, or from where the system looks.
std::shared_ptr<Library_Loader> System_Libraries();

/// The local time, in whole seconds.
std::shared_ptr<Clock> System_Clock();

}  // namespace quorvex
