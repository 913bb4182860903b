// Ways in which arguments are handed over, and how a call that doesn't fit is refused.
#include <gtest/gtest.h>

#include "interface_calls.h"

namespace quorvex::windows {
namespace {

class Arguments : public testing::Test {
 protected:
  void SetUp() override {
    object_ = Make_Object();
    ASSERT_TRUE(object_);
  }
  Outcome call(const std::string& method, const Values& positional,
               const std::map<std::string, VARIANT>& named = {}, WORD flags = DISPATCH_METHOD) {
    return Call_Late(*object_.get(), method, positional, named, flags);
  }
  std::string text(const std::string& method, const Values& positional,
                   const std::map<std::string, VARIANT>& named = {}) {
    const Outcome outcome = call(method, positional, named);
    return SUCCEEDED(outcome.status) ? Text_In(*outcome.result)
                                     : "status " + std::to_string(outcome.status);
  }

  Com_Pointer<IDispatch> object_;
};

TEST_F(Arguments, AreFoundByPlaceAndByName) {
  const VARIANT one = Text("1");
  const VARIANT seven = Number(7);
  EXPECT_EQ(text("qvxDIVIDE", {one, seven, Omitted(), Omitted(), Omitted(), Omitted(), Number(5)}),
            "0.142857");
  EXPECT_EQ(text("qvxDIVIDE", {one, seven}, {{"maximum_significant_digits", Number(5)}}),
            "0.142857");
  EXPECT_EQ(text("QVXDIVIDE", {},
                 {{"NUMBER2", seven}, {"number1", one}, {"Maximum_Significant_Digits", Number(5)}}),
            "0.142857");
  EXPECT_EQ(text("qvxADD", {Text("1,234.5"), Text("-2"), Omitted(), Truth(true)}), "1,232.5");
}

TEST_F(Arguments, MayStandBehindReferences) {
  VARIANT number = Text("20");
  VARIANT reference = By_Reference(number);
  EXPECT_EQ(text("qvxSQRT", {By_Reference(number), Omitted(), Omitted(), Omitted(), Number(3)}),
            text("qvxSQRT", {number, Omitted(), Omitted(), Omitted(), Number(3)}));
  EXPECT_EQ(text("qvxABS", {By_Reference(reference)}), "20");
  double value = -2.5;
  VARIANT direct;
  ::VariantInit(&direct);
  direct.vt = VT_BYREF | VT_R8;
  direct.pdblVal = &value;
  EXPECT_EQ(text("qvxABS", {direct}), "2.5");
  VARIANT omitted = Omitted();
  EXPECT_EQ(text("qvxADD", {Number(1), Number(2), By_Reference(omitted)}), "3");
}

TEST_F(Arguments, AreWrittenBackWhereTheMethodChangesThem) {
  Variant big;
  *big = {};
  big->vt = VT_BSTR;
  big->bstrVal = Make_Bstr("0012");
  Variant small;
  small->vt = VT_BSTR;
  small->bstrVal = Make_Bstr("007");
  VARIANT direct;
  ::VariantInit(&direct);
  direct.vt = VT_BYREF | VT_BSTR;
  direct.pbstrVal = &small->bstrVal;
  const Outcome outcome = call("Recip_Divide", {By_Reference(*big), direct, Number(10)});
  ASSERT_EQ(outcome.status, S_OK);
  const std::string before = "0012 007";
  const std::string after = Text_In(*big) + " " + Text_In(*small);
  // The method strips zeros of what it is handed.
  EXPECT_NE(after, before);
  EXPECT_EQ(after.find("12"), 0u);
}

TEST_F(Arguments, OfAListStandInOneValueOrOneByOne) {
  const Values elements = {Text("1.5"), Number(2), Text("x"), Omitted(),
                           Table(2, 1, {Number(3), Text("4")})};
  EXPECT_EQ(text("qvxSUM2", elements), "10.5");
  EXPECT_EQ(text("qvxSUM2", {Vector(elements)}), "10.5");
  VARIANT variable = Vector(elements);
  EXPECT_EQ(text("qvxSUM2", {By_Reference(variable)}), "10.5");
  VARIANT array;
  ::VariantInit(&array);
  array.vt = VT_BYREF | VT_ARRAY | VT_VARIANT;
  array.pparray = &variable.parray;
  EXPECT_EQ(text("qvxSUM2", {array}), "10.5");
  EXPECT_EQ(text("qvxSUM2", {}, {{"numlist", variable}}), "10.5");
  EXPECT_EQ(text("qvxSUM2", {}), "0");
  EXPECT_EQ(text("qvxSUM2", {Omitted()}), "0");
  EXPECT_EQ(text("qvxSUM2", {Number(5)}), "5");
  EXPECT_EQ(text("qvxCOUNT", {Table(1, 3, {Number(1), Number(2), Text("a")})}), "2");
  // A method that takes more than its list gets that list as one argument.
  EXPECT_EQ(text("qvxMODE", {Vector({Number(4), Number(4), Number(1)})}), "4");
  EXPECT_EQ(text("qvxMODE", {Table(1, 2, {Number(4), Number(4)})}), "4");
}

TEST_F(Arguments, ThatDoNotFitAreRefused) {
  const VARIANT one = Number(1);
  EXPECT_EQ(call("qvxADD", {one}).status, DISP_E_PARAMNOTOPTIONAL);
  const Outcome in_front = call("qvxADD", {Omitted(), one});
  EXPECT_EQ(in_front.status, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(in_front.bad_argument, 1u);
  EXPECT_EQ(call("qvxABS", {one, one, one, one, one, one}).status, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call("qvxVERSION", {one}).status, DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(call("qvxADD", {one, one}, {{"number1", one}}).status, DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(call("qvxADD", {one, one}, {{"number3", one}}).status, DISP_E_UNKNOWNNAME);
  EXPECT_EQ(call("qvxNOTHING", {}).status, DISP_E_UNKNOWNNAME);
  EXPECT_EQ(call("qvxVERSION", {}, {}, DISPATCH_PROPERTYPUT).status, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(call("qvxVERSION", {}, {}, DISPATCH_PROPERTYGET).status, S_OK);
  EXPECT_EQ(call("qvxVERSION", {}, {}, DISPATCH_METHOD | DISPATCH_PROPERTYGET).status, S_OK);
  DISPPARAMS none{};
  for (const DISPID id : {0, -1, 98, 100000}) {
    EXPECT_EQ(object_->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_MEMBERNOTFOUND);
  }
}

TEST_F(Arguments, FailuresCarryTheRunTimeNumber) {
  const Outcome by_name = call("Min", {Text("abc"), Number(1)});
  EXPECT_EQ(by_name.status, DISP_E_EXCEPTION);
  EXPECT_EQ(by_name.number, 13);
  EXPECT_EQ(by_name.source, "Quorvex");
  EXPECT_FALSE(by_name.description.empty());
  const Outcome no_object = call("SetExcelApp", {Text("a text")});
  EXPECT_EQ(no_object.number, 13);

  Com_Pointer<ISupportErrorInfo> support;
  ASSERT_EQ(object_->QueryInterface(IID_ISupportErrorInfo, support.put_void()), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(interface_guid), S_OK);
  Com_Pointer<IUnknown> one;
  Com_Pointer<IUnknown> other;
  support->QueryInterface(IID_IUnknown, one.put_void());
  object_->QueryInterface(IID_IUnknown, other.put_void());
  EXPECT_EQ(one.get(), other.get());
  for (const Described_Method& method : Described_Interface(*object_.get())) {
    if (method.name != "Min") continue;
    std::vector<Typed_Argument> arguments(2);
    *arguments[0].value = Text("abc");
    *arguments[1].value = Number(1);
    const Outcome by_slot = Call_Slot(*object_.get(), method, arguments);
    arguments[0].value.release();
    EXPECT_EQ(by_slot.status, static_cast<HRESULT>(0x800A000D));
    EXPECT_EQ(by_slot.description, by_name.description);
    EXPECT_EQ(by_slot.source, "Quorvex");
  }
}

}  // namespace
}  // namespace quorvex::windows
