// Answers of the batch protocol.
#include "batch/answer.h"

#include <exception>
#include <new>
#include <utility>

#include "batch/json_document.h"
#include "batch/request.h"
#include "batch/value_codec.h"
#include "frame/catalogue.h"

namespace quorvex {
namespace {

void Append_Start(std::string& out, std::string_view id) {
  out += '{';
  if (!id.empty()) out.append("\"id\":").append(id).append(",");
}

void Append_Record(std::string& out, const Record& record) {
  out += "\"record\":{";
  for (std::size_t i = 0; i < record.fields.size(); ++i) {
    if (i > 0) out += ',';
    Append_Json_String(out, record.fields[i].first);
    out += ':';
    Append_Json(out, record.fields[i].second);
  }
  out += '}';
}

// A method without a result answers with a missing value.
void Append_Result(std::string& out, std::string_view id, const Call_Result& result) {
  Append_Start(out, id);
  if (const auto* record = std::get_if<Record>(&result)) {
    Append_Record(out, *record);
  } else {
    const auto* value = std::get_if<HostValue>(&result);
    out += "\"value\":";
    Append_Json(out, value != nullptr ? *value : Missing);
  }
  out += '}';
}

}  // namespace

void Append_Failure(std::string& out, std::string_view id, const Run_Time_Failure& failure) {
  Append_Start(out, id);
  out += "\"failure\":";
  Append_Json_String(out, failure.what());
  out.append(",\"number\":").append(std::to_string(static_cast<int>(failure.number()))).append("}");
}

void Append_Invalid(std::string& out, std::string_view id, std::string_view problem) {
  Append_Start(out, id);
  out += "\"invalid\":";
  Append_Json_String(out, problem);
  out += '}';
}

void Answerer::append_answer(std::string& out, std::string_view line) {
  const std::size_t start = out.size();
  Request request;
  const auto fail = [&](const Run_Time_Failure& failure) {
    out.resize(start);
    Append_Failure(out, request.id, failure);
  };
  try {
    request = Read_Request(line);
    if (request.method == nullptr || !request.problem.empty())
      return Append_Invalid(out, request.id, request.problem);
    if (guard_ != nullptr) guard_->begin_call();
    Append_Result(out, request.id, Invoke(engine_, *request.method, std::move(request.arguments)));
  } catch (const Run_Time_Failure& failure) {
    fail(failure);
  } catch (const std::bad_alloc&) {
    fail(Run_Time_Failure(Failure_Number::out_of_memory, "There is not enough memory."));
  } catch (const std::length_error&) {
    fail(Run_Time_Failure(Failure_Number::out_of_memory, "A text would grow too long."));
  } catch (const std::exception& fault) {
    // No call should end here; a run of thousands of requests goes on even so.
    fail(Run_Time_Failure(Failure_Number::invalid_call,
                          std::string("Internal fault: ") + fault.what()));
  }
}

}  // namespace quorvex
