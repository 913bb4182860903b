// The parts of the platform on POSIX systems, one file each.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "host/platform.h"

namespace quorvex {

/// The locale that the environment names (LC_ALL, LC_NUMERIC, LC_MONETARY, LANG), as it is now.
Locale Environment_Locale();

/// The settings file of the user: quorvex/settings in XDG_CONFIG_HOME, or else in .config of the
/// home folder; nothing if there is no home folder.
std::optional<std::filesystem::path> Settings_Path();

/// A store in that file, which is made when it is first written.
std::shared_ptr<Settings_Store> File_Settings(std::optional<std::filesystem::path> path);

/// Asks on `output` and reads the answer from `input` (file descriptors) if both are terminals and
/// this process is in the foreground. Otherwise it shows nothing, and the answer is ok or no.
std::shared_ptr<Message_Box> Terminal_Message_Box(int input, int output);

/// What the system has left, within the limits of the process and of its control group.
std::shared_ptr<Memory_Gauge> System_Memory();

std::shared_ptr<Letter_Case> System_Letters();

/// Loads shared libraries from the folder of this one, or from where the system looks.
std::shared_ptr<Library_Loader> System_Libraries();

/// The local time, in whole seconds.
std::shared_ptr<Clock> System_Clock();

}  // namespace quorvex
