// A platform that finds no library.
#pragma once

#include <memory>
#include <utility>

#include "host/platform.h"

namespace quorvex {

class Without_Libraries {
 public:
  Without_Libraries()
      : before_(std::exchange(Current_Platform().libraries, std::make_shared<None>())) {}
  ~Without_Libraries() { Current_Platform().libraries = before_; }
  Without_Libraries(const Without_Libraries&) = delete;
  Without_Libraries& operator=(const Without_Libraries&) = delete;

 private:
  class None final : public Library_Loader {
   public:
    void* symbol(const char*, const char*) override { return nullptr; }
  };

  std::shared_ptr<Library_Loader> before_;
};

}  // namespace quorvex
