// Answers of the batch protocol.
#include "batch/answer.h"

#include <exception>
#include <new>
#include <utility>
#include <vector>

#include "batch/json_document.h"
#include "batch/value_codec.h"
#include "formula/literals.h"
#include "formula/reasons.h"
#include "frame/catalogue.h"
#include "host/failure_watch.h"

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
void Append_Result(std::string& out, std::string_view id, const Call_Result& result,
                   std::string_view reason) {
  Append_Start(out, id);
  if (const auto* record = std::get_if<Record>(&result)) {
    Append_Record(out, *record);
  } else {
    const auto* value = std::get_if<HostValue>(&result);
    out += "\"value\":";
    Append_Json(out, value != nullptr ? *value : Missing);
  }
  if (!reason.empty()) {
    out += ",\"reason\":";
    Append_Json_String(out, reason);
  }
  out += '}';
}

// Sentences on a result, one behind the other.
std::string Joined(const std::vector<std::string>& sentences) {
  std::string text;
  for (const std::string& sentence : sentences) text += (text.empty() ? "" : " ") + sentence;
  return text;
}

}  // namespace

Call_Result Answerer::explained(Request& request, std::string& reason) {
  const Method& method = *request.method;
  request.arguments.resize(method.parameters.size());
  std::vector<std::string> notes;
  Add_Surprises(engine_, method, request.arguments, notes);
  const Failure_Watch watch;
  Call_Result result = Invoke_In_Place(engine_, method, request.arguments);
  if (const auto* value = std::get_if<HostValue>(&result)) {
    if (Is_Error(*value)) {
      std::string why = Reason_Of_Call(engine_, method, request.arguments, *value, watch.seen());
      if (!why.empty()) notes.push_back(std::move(why));
    } else if (auto note = Note_On_Cut(*value)) {
      notes.push_back(std::move(*note));
    }
  }
  reason = Joined(notes);
  return result;
}

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

void Answerer::append_result(std::string& out, Request& request) {
  if (guard_ != nullptr) guard_->begin_call();
  const std::string missing = Missing_Argument(request);
  if (!missing.empty()) throw Run_Time_Failure(Failure_Number::type_mismatch, missing);
  std::string reason;
  const Call_Result result = request.explain
                                 ? explained(request, reason)
                                 : Invoke(engine_, *request.method, std::move(request.arguments));
  Append_Result(out, request.id, result, reason);
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
    append_result(out, request);
    const std::size_t length = out.size() - start;
    if (length > longest_) {
      throw Run_Time_Failure(
          Failure_Number::out_of_memory,
          "The answer has " + std::to_string(length) + " bytes, more than --max-answer allows.");
    }
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
