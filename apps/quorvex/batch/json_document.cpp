// Reads one line of JSON with the strictness that a protocol needs.
#include "batch/json_document.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "formula/literals.h"

namespace quorvex {
namespace {

using nlohmann::json;

// Writes what it is told back as JSON text, for one whole value.
class Echo {
 public:
  bool done() const { return depth_ == 0 && !text_.empty(); }
  std::string& text() { return text_; }

  void scalar(std::string_view token) {
    separate();
    text_ += token;
  }
  void string(std::string_view text) {
    separate();
    Append_Json_String(text_, text);
  }
  void key(std::string_view name) {
    string(name);
    text_ += ':';
    separated_ = true;
  }
  void open(char bracket) {
    separate();
    text_ += bracket;
    separated_ = true;
    ++depth_;
  }
  void close(char bracket) {
    text_ += bracket;
    separated_ = false;
    --depth_;
  }

 private:
  void separate() {
    if (!separated_) text_ += ',';
    separated_ = false;
  }

  std::string text_;
  std::size_t depth_ = 0;
  bool separated_ = true;
};

// The library's message without its own prefix and without the text last read, which may be
// millions of characters long.
std::string Plain_Message(std::string_view message) {
  const auto detail = message.find(" - ");
  if (detail != std::string_view::npos) message.remove_prefix(detail + 3);
  message = message.substr(0, message.find("; last read:"));
  return std::string(message);
}

// A number that the parser refuses because no 64-bit float is so large.
class Number_Too_Large : public Invalid_Request {
 public:
  Number_Too_Large() : Invalid_Request("a number is too large for a 64-bit float") {}
};

// Numbers by their places: 0 is the first number in the line that stands in no string.
using Placed_Numbers = std::map<std::size_t, std::string>;

// Builds the document from the parser's events. The names are those that the parser calls.
class Builder {
 public:
  // The parser is given something else for the numbers that are too large for it.
  Builder(json& root, std::string& id, const Placed_Numbers& too_large)
      : root_(root), id_(id), too_large_(too_large) {}

  bool null() { return scalar("null", nullptr); }
  bool boolean(bool value) { return scalar(value ? "true" : "false", value); }
  bool number_integer(std::int64_t value) { return number(std::to_string(value), value); }
  bool number_unsigned(std::uint64_t value) { return number(std::to_string(value), value); }
  bool number_float(double value, const std::string& token) { return number(token, value); }
  bool binary(json::binary_t& /*value*/) { return false; }

  bool string(std::string& value) {
    if (in_id_) {
      echo_.string(value);
      return finish_id();
    }
    put(std::move(value));
    return true;
  }

  bool key(std::string& name) {
    if (in_id_) {
      echo_.key(name);
      return true;
    }
    if (open_.size() == 1 && name == "id") return start_id();
    const auto [place, is_new] = open_.back()->get_ref<json::object_t&>().try_emplace(name);
    if (!is_new) throw Invalid_Request("the key \"" + name.substr(0, 80) + "\" is given twice");
    member_ = &place->second;
    return true;
  }

  bool start_object(std::size_t /*count*/) { return start('{', json::object()); }
  bool start_array(std::size_t /*count*/) { return start('[', json::array()); }
  bool end_object() { return end('}'); }
  bool end_array() { return end(']'); }

  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const nlohmann::detail::exception& error) {
    if (std::string_view(error.what()).find("number overflow") != std::string_view::npos)
      throw Number_Too_Large();
    throw Invalid_Request("not well-formed JSON at byte " + std::to_string(position) + ": " +
                          Plain_Message(error.what()));
  }

 private:
  template <typename Value>
  bool number(std::string_view token, Value value) {
    const auto too_large = too_large_.find(numbers_++);
    if (too_large != too_large_.end()) token = too_large->second;
    if (in_id_) return scalar(token, value);
    const bool negative = token.starts_with('-');
    HostValue read =
        Number_Value(token.substr(negative ? 1 : 0), negative, ".", Given_Back::in_shortest_form);
    return read.is_text() ? scalar(token, std::move(read.mutable_text())) : scalar(token, value);
  }

  template <typename Value>
  bool scalar(std::string_view token, Value value) {
    if (in_id_) {
      echo_.scalar(token);
      return finish_id();
    }
    put(std::move(value));
    return true;
  }

  bool start(char bracket, json&& container) {
    if (++depth_ > maximum_json_depth) {
      throw Invalid_Request("more than " + std::to_string(maximum_json_depth) +
                            " levels of arrays and objects");
    }
    if (in_id_) {
      echo_.open(bracket);
    } else {
      open_.push_back(put(std::move(container)));
    }
    return true;
  }

  bool end(char bracket) {
    --depth_;
    if (!in_id_) {
      open_.pop_back();
      return true;
    }
    echo_.close(bracket);
    return finish_id();
  }

  // Puts a value where the next one belongs, and tells where it stands now.
  template <typename Value>
  json* put(Value&& value) {
    json* place = &root_;
    if (!open_.empty() && open_.back()->is_array()) {
      place = &open_.back()->get_ref<json::array_t&>().emplace_back();
    } else if (!open_.empty()) {
      place = member_;
    }
    *place = std::forward<Value>(value);
    return place;
  }

  bool start_id() {
    if (!id_.empty()) throw Invalid_Request("the key \"id\" is given twice");
    in_id_ = true;
    return true;
  }

  bool finish_id() {
    if (!echo_.done()) return true;
    id_ = std::move(echo_.text());
    in_id_ = false;
    return true;
  }

  json& root_;
  std::string& id_;
  const Placed_Numbers& too_large_;
  std::size_t numbers_ = 0;  // that the parser has told of
  std::vector<json*> open_;
  json* member_ = nullptr;
  Echo echo_;
  std::size_t depth_ = 0;
  bool in_id_ = false;
};

bool Is_Plain(char character) {
  const auto byte = static_cast<unsigned char>(character);
  return byte >= 0x20 && byte < 0x7F && character != '"' && character != '\\';
}

void Parse(std::string_view line, const Placed_Numbers& too_large, json& root, std::string& id) {
  Builder builder(root, id, too_large);
  json::sax_parse(line, &builder);
}

// False also for what is no number in JSON: the parser will tell what is wrong with it.
bool Is_Too_Large(std::string_view number) {
  try {
    const json fits = json::parse(number);
    return false;
  } catch (const json::out_of_range&) {
    return true;
  } catch (const json::parse_error&) {
    return false;
  }
}

// The place behind the string that begins there.
std::size_t End_Of_String(std::string_view line, std::size_t at) {
  for (++at; at < line.size() && line[at] != '"'; ++at)
    if (line[at] == '\\') ++at;
  return at + 1;
}

// Takes the numbers that are too large out of a line, and leaves a zero of the same length for
// each, so that every other character stays where it is.
Placed_Numbers Take_Too_Large_Numbers(std::string& line) {
  Placed_Numbers taken;
  std::size_t count = 0;
  for (std::size_t at = 0; at < line.size();) {
    const std::string_view rest = std::string_view(line).substr(at);
    const std::size_t sign = rest.starts_with('-') ? 1 : 0;
    const std::size_t digits = Number_Length(rest.substr(sign), ".");
    const std::size_t length = sign + digits;
    if (rest.starts_with('"')) {
      at = End_Of_String(line, at);
    } else if (digits == 0) {
      ++at;
    } else {
      if (Is_Too_Large(rest.substr(0, length))) {
        taken.emplace(count, rest.substr(0, length));
        line.replace(at, length, "0." + std::string(length - 2, '0'));
      }
      at += length;
      ++count;
    }
  }
  return taken;
}

}  // namespace

void Parse_Json(std::string_view line, json& root, std::string& id) {
  try {
    Parse(line, {}, root, id);
  } catch (const Number_Too_Large&) {
    std::string rest(line);
    const Placed_Numbers too_large = Take_Too_Large_Numbers(rest);
    root = nullptr;
    id.clear();
    Parse(rest, too_large, root, id);
  }
}

void Append_Json_String(std::string& out, std::string_view text) {
  if (std::all_of(text.begin(), text.end(), Is_Plain)) {
    out += '"';
    out += text;
    out += '"';
    return;
  }
  out += json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace quorvex
