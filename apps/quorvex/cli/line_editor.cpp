// Lines typed on a terminal, with editing, history and completion.
#include "cli/line_editor.h"

#include <histedit.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cwchar>
#include <system_error>
#include <utility>

#include "formula/visible.h"
#include "io/call_guard.h"

namespace quorvex {
namespace {

constexpr int history_length = 1000;

volatile std::sig_atomic_t resized = 0;
volatile std::sig_atomic_t continued = 0;

extern "C" void Note_Resize(int /*signal*/) {
  resized = 1;
}
extern "C" void Note_Continuation(int /*signal*/) {
  continued = 1;
}

// A signal has to end the wait for a key, so none of these restarts it.
void Catch(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  ::sigemptyset(&action.sa_mask);
  ::sigaction(signal, &action, nullptr);
}

void Follow_Terminal(EditLine* editor) {
  if (std::exchange(resized, 0) != 0) ::el_resize(editor);
  if (std::exchange(continued, 0) != 0) {
    ::el_set(editor, EL_PREP_TERM, 1);
    ::el_set(editor, EL_REFRESH);
  }
}

// Waits for a key or a signal. Signals are held back from before `Call_Guard` is asked until the
// wait begins, lest one that comes in between be slept through.
void Wait_For_Key() {
  sigset_t signals;
  sigset_t before;
  ::sigemptyset(&signals);
  for (const int signal : {SIGINT, SIGWINCH, SIGCONT}) ::sigaddset(&signals, signal);
  ::pthread_sigmask(SIG_BLOCK, &signals, &before);
  if (!Call_Guard::is_interrupted() && resized == 0 && continued == 0) {
    pollfd input{STDIN_FILENO, POLLIN, 0};
    ::ppoll(&input, 1, nullptr, &before);
  }
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

// One byte of what is typed: 1, 0 at the end, -1 when Ctrl-C was typed or nothing can be read.
int Read_Byte(EditLine* editor, char& byte) {
  for (;;) {
    Wait_For_Key();
    if (Call_Guard::is_interrupted()) {
      errno = EINTR;
      return -1;
    }
    if (resized != 0 || continued != 0) {
      Follow_Terminal(editor);
      continue;
    }
    const ssize_t got = ::read(STDIN_FILENO, &byte, 1);
    if (got >= 0 || errno != EINTR) return static_cast<int>(got);
  }
}

// The library's own reader would wait on after Ctrl-C.
int Read_Character(EditLine* editor, wchar_t* character) {
  constexpr auto bad = static_cast<std::size_t>(-1);
  constexpr auto incomplete = static_cast<std::size_t>(-2);
  std::mbstate_t state{};
  for (;;) {
    char byte = 0;
    const int got = Read_Byte(editor, byte);
    if (got != 1) return got;
    const std::size_t used = std::mbrtowc(character, &byte, 1, &state);
    if (used == bad) {
      state = std::mbstate_t{};
    } else if (used != incomplete) {
      return 1;
    }
  }
}

}  // namespace

class Line_Editor::State {
 public:
  State(std::string prompt, std::filesystem::path history_file, Completer completer)
      : prompt_(std::move(prompt)),
        history_file_(std::move(history_file)),
        completer_(std::move(completer)),
        editor_(::el_init("quorvex", stdin, stdout, stderr)),
        history_(::history_init()) {
    ::el_set(editor_, EL_CLIENTDATA, this);
    ::el_set(editor_, EL_PROMPT, &State::Prompt);
    ::el_set(editor_, EL_EDITOR, "emacs");
    ::el_set(editor_, EL_GETCFN, &Read_Character);
    // The other form of this call copies the names and never frees them.
    ::el_wset(editor_, EL_ADDFN, L"quorvex-complete", L"Completes a name", &State::Complete);
    ::el_set(editor_, EL_BIND, "^I", "quorvex-complete", nullptr);
    ::el_set(editor_, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    set_up_history();
    ::el_source(editor_, nullptr);
    Catch(SIGWINCH, &Note_Resize);
    Catch(SIGCONT, &Note_Continuation);
  }
  ~State() {
    ::history_end(history_);
    ::el_end(editor_);
  }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  Status read(std::string& line) {
    // A calculation that was over before it heeded Ctrl-C has nothing to do with this line.
    Call_Guard::forget_interruption();
    // The library shows the prompt first and then takes the terminal over, too late for a key that
    // was typed as soon as the prompt was seen.
    ::el_set(editor_, EL_PREP_TERM, 1);
    int count = 0;
    const char* typed = ::el_gets(editor_, &count);
    if (Call_Guard::is_interrupted()) {
      Call_Guard::forget_interruption();
      ::el_reset(editor_);
      std::fputs("^C\n", stdout);
      std::fflush(stdout);
      return Status::interrupted;
    }
    if (typed == nullptr || count <= 0) return Status::end;
    line.assign(typed, static_cast<std::size_t>(count));
    if (line.ends_with('\n')) line.pop_back();
    return Status::line;
  }

  // Written at once, for a terminal that is closed gives no chance later.
  void remember(const std::string& line) {
    HistEvent event{};
    ::history(history_, &event, H_ENTER, line.c_str());
    if (history_file_.empty()) return;
    std::error_code ignored;
    std::filesystem::create_directories(history_file_.parent_path(), ignored);
    ::history(history_, &event, H_SAVE, history_file_.c_str());
  }

 private:
  static State& Of(EditLine* editor) {
    void* state = nullptr;
    ::el_get(editor, EL_CLIENTDATA, &state);
    return *static_cast<State*>(state);
  }

  static char* Prompt(EditLine* editor) { return Of(editor).prompt_.data(); }

  static unsigned char Complete(EditLine* editor, int /*key*/) { return Of(editor).complete(); }

  unsigned char complete() {
    const LineInfo* line = ::el_line(editor_);
    const auto before = static_cast<std::size_t>(line->cursor - line->buffer);
    const Completion completion = completer_(std::string_view(line->buffer, before));
    if (completion.replacement.empty()) return CC_ERROR;
    const std::string_view word(line->cursor - completion.typed, completion.typed);
    const bool is_longer = word.size() < completion.replacement.size();
    ::el_deletestr(editor_, static_cast<int>(completion.typed));
    ::el_insertstr(editor_, completion.replacement.c_str());
    if (is_longer || completion.candidates.empty()) return CC_REFRESH;
    std::fputs("\n", stdout);
    for (const std::string& candidate : completion.candidates)
      std::fprintf(stdout, "%s  ", Visible(candidate).c_str());
    std::fputs("\n", stdout);
    return CC_REDISPLAY;
  }

  void set_up_history() {
    HistEvent event{};
    ::history(history_, &event, H_SETSIZE, history_length);
    ::history(history_, &event, H_SETUNIQUE, 1);
    if (!history_file_.empty()) ::history(history_, &event, H_LOAD, history_file_.c_str());
    ::el_set(editor_, EL_HIST, &::history, history_);
  }

  std::string prompt_;
  std::filesystem::path history_file_;
  Completer completer_;
  EditLine* editor_;
  History* history_;
};

Line_Editor::Line_Editor(std::string prompt, std::filesystem::path history_file,
                         Completer completer)
    : state_(std::make_unique<State>(std::move(prompt), std::move(history_file),
                                     std::move(completer))) {}

Line_Editor::~Line_Editor() = default;

Line_Editor::Status Line_Editor::read(std::string& line) {
  return state_->read(line);
}

void Line_Editor::remember(const std::string& line) {
  state_->remember(line);
}

}  // namespace quorvex
