// Values of every kind that automation knows, as the engine reads them.
#include <gtest/gtest.h>

#include "interface_calls.h"
#include "mock_host.h"

namespace quorvex::windows {
namespace {

class Kinds : public testing::Test {
 protected:
  void SetUp() override {
    object_ = Make_Object();
    ASSERT_TRUE(object_);
  }
  // What the engine makes of a value: its sum with nothing.
  std::string read(VARIANT value) {
    return Text_Of_Call(*object_.get(), "qvxADD", {value, Number(0)});
  }
  template <typename Member, typename Value>
  std::string read(VARTYPE type, Member VARIANT::*member, Value content) {
    VARIANT value;
    ::VariantInit(&value);
    value.vt = type;
    value.*member = static_cast<Member>(content);
    const std::string direct = read(value);
    Member place = static_cast<Member>(content);
    VARIANT reference;
    ::VariantInit(&reference);
    reference.vt = static_cast<VARTYPE>(VT_BYREF | type);
    reference.byref = &place;
    EXPECT_EQ(read(reference), direct) << "by reference, kind " << type;
    return direct;
  }

  Com_Pointer<IDispatch> object_;
};

TEST_F(Kinds, WholeNumbersKeepAllDigits) {
  EXPECT_EQ(read(VT_I1, &VARIANT::cVal, -5), "-5");
  EXPECT_EQ(read(VT_UI1, &VARIANT::bVal, 250), "250");
  EXPECT_EQ(read(VT_I2, &VARIANT::iVal, -30000), "-30000");
  EXPECT_EQ(read(VT_UI2, &VARIANT::uiVal, 60000), "60000");
  EXPECT_EQ(read(VT_I4, &VARIANT::lVal, -2147483647 - 1), "-2147483648");
  EXPECT_EQ(read(VT_UI4, &VARIANT::ulVal, 4294967295u), "4294967295");
  EXPECT_EQ(read(VT_INT, &VARIANT::intVal, 7), "7");
  EXPECT_EQ(read(VT_I8, &VARIANT::llVal, -9223372036854775807LL - 1), "-9223372036854775808");
  EXPECT_EQ(read(VT_UI8, &VARIANT::ullVal, 18446744073709551615ULL), "18446744073709551615");
}

TEST_F(Kinds, FractionsKeepTheirDigitsToo) {
  EXPECT_EQ(read(VT_R8, &VARIANT::dblVal, 0.1), "0.1");
  EXPECT_EQ(read(VT_R4, &VARIANT::fltVal, 0.1f), "0.1");
  EXPECT_EQ(read(VT_DATE, &VARIANT::date, 45000.25), "45000.25");
  const CY most{.int64 = 9223372036854775807LL};
  EXPECT_EQ(read(VT_CY, &VARIANT::cyVal, most), "922337203685477.5807");
  EXPECT_EQ(read(VT_CY, &VARIANT::cyVal, CY{.int64 = -25000}), "-2.5");
  EXPECT_EQ(read(VT_CY, &VARIANT::cyVal, CY{.int64 = -1}), "-0.0001");
}

TEST_F(Kinds, DecimalsKeepAllOfTheir96Bits) {
  const struct {
    const wchar_t* text;
    const char* expected;
  } cases[] = {{L"79228162514264337593543950335", "79228162514264337593543950335"},
               {L"-7.9228162514264337593543950335", "-7.9228162514264337593543950335"},
               {L"0.0000000000000000000000000001", "0.0000000000000000000000000001"},
               {L"0.1234567890123456789", "0.1234567890123456789"},
               {L"-12.50", "-12.5"},
               {L"0", "0"}};
  for (const auto& one : cases) {
    VARIANT value;
    ::VariantInit(&value);
    ASSERT_EQ(::VarDecFromStr(const_cast<wchar_t*>(one.text), 0x409, 0, &value.decVal), S_OK);
    value.vt = VT_DECIMAL;
    EXPECT_EQ(read(value), one.expected);
    DECIMAL place = value.decVal;
    VARIANT reference;
    ::VariantInit(&reference);
    reference.vt = VT_BYREF | VT_DECIMAL;
    reference.pdecVal = &place;
    EXPECT_EQ(read(reference), one.expected);
  }
}

TEST_F(Kinds, BlanksErrorsAndNoValues) {
  VARIANT value;
  ::VariantInit(&value);
  EXPECT_EQ(read(value), "0");
  value.vt = VT_NULL;
  EXPECT_EQ(read(value), "error 94");
  value.vt = VT_DISPATCH;
  value.pdispVal = nullptr;
  EXPECT_EQ(read(value), "error 91");
  value.vt = VT_ERROR;
  value.scode = static_cast<SCODE>(0x800A07FA);
  EXPECT_EQ(read(value), "#VALUE!");
  EXPECT_EQ(Text_Of_Call(*object_.get(), "qvxISERROR", {value}), "True");
  EXPECT_EQ(Text_Of_Call(*object_.get(), "Max", {value, Number(1)}), "error 13");
  EXPECT_EQ(read(Text("")), "0");
  EXPECT_EQ(Text_Of_Call(*object_.get(), "qvxISNUMBER", {Text("\xE2\x82\xAC")}), "False");
  // A text without any character may come without a text.
  value.vt = VT_BSTR;
  value.bstrVal = nullptr;
  EXPECT_EQ(read(value), "0");
}

template <typename Element>
VARIANT Typed_Vector(VARTYPE type, std::initializer_list<Element> elements) {
  VARIANT value;
  ::VariantInit(&value);
  value.vt = static_cast<VARTYPE>(VT_ARRAY | type);
  value.parray = ::SafeArrayCreateVector(type, 0, static_cast<ULONG>(elements.size()));
  LONG index = 0;
  for (Element element : elements) {
    ::SafeArrayPutElement(value.parray, &index, &element);
    ++index;
  }
  return value;
}

TEST_F(Kinds, ArraysOfOtherTypesAreReadElementByElement) {
  const auto read = [&](VARIANT list) {
    const std::string most = Text_Of_Call(*object_.get(), "qvxMODE", {list});
    const std::string total = Text_Of_Call(*object_.get(), "qvxSUM2", {list});
    ::VariantClear(&list);
    return most + " " + total;
  };
  EXPECT_EQ(read(Typed_Vector<double>(VT_R8, {1.5, 2, 1.5})), "1.5 5");
  EXPECT_EQ(read(Typed_Vector<LONG>(VT_I4, {5, -7, -7})), "-7 -9");
  EXPECT_EQ(read(Typed_Vector<BYTE>(VT_UI1, {9, 9, 8})), "9 26");
  EXPECT_EQ(read(Typed_Vector<CY>(VT_CY, {CY{.int64 = 12500}, CY{.int64 = 12500}})), "1.25 2.5");
}

TEST_F(Kinds, ArraysOfOtherRanksAreTold) {
  SAFEARRAYBOUND bounds[3] = {{1, 0}, {1, 0}, {1, 0}};
  VARIANT deep;
  ::VariantInit(&deep);
  deep.vt = VT_ARRAY | VT_VARIANT;
  deep.parray = ::SafeArrayCreate(VT_VARIANT, 3, bounds);
  EXPECT_EQ(Text_Of_Call(*object_.get(), "qvxSUM2", {deep}), "error 13");
  ::VariantClear(&deep);
  EXPECT_EQ(Text_Of_Call(*object_.get(), "qvxSUM",
                         {Table(2, 2, {Number(1), Text("2"), Text("3.5"), Number(4)})}),
            "10.5");
  // Rows and columns don't change places on the way.
  const Outcome sorted =
      Call_Late(*object_.get(), "qvxSORT",
                {Table(2, 3, {Number(6), Number(5), Number(4), Number(3), Number(2), Number(1)}),
                 Omitted(), Truth(true)});
  ASSERT_EQ(sorted.result->vt, VT_ARRAY | VT_VARIANT);
  LONG place[2] = {1, 3};
  Variant cell;
  ::SafeArrayGetElement(sorted.result->parray, place, &cell);
  EXPECT_EQ(Text_In(*cell), "3");
}

TEST_F(Kinds, ObjectsAreReadByTheirValue) {
  const Mock_Pointer cell = Make_Mock({{"", [](auto&) { return Text("2.50"); }}});
  EXPECT_EQ(read(Object(cell)), "2.5");
  const Mock_Pointer range = Make_Mock({{"", [](auto&) {
                                           return Table(2, 1, {Number(1), Text("2")});
                                         }}});
  EXPECT_EQ(Text_Of_Call(*object_.get(), "qvxSUM", {Object(range)}), "3");
  EXPECT_EQ(Text_Of_Call(*object_.get(), "qvxSUM2", {Object(range), Number(4), Object(cell)}),
            "9.5");
  // Four decimals are what currency has; the cell holds more.
  VARIANT rounded;
  ::VariantInit(&rounded);
  rounded.vt = VT_CY;
  rounded.cyVal = CY{.int64 = 12346};
  const Mock_Pointer money = Make_Mock(
      {{"", [=](auto&) { return rounded; }}, {"Value2", [](auto&) { return Number(1.23456); }}});
  EXPECT_EQ(read(Object(money)), "1.23456");
  const Mock_Pointer valueless = Make_Mock({});
  EXPECT_EQ(Text_Of_Call(*object_.get(), "Max", {Object(valueless), Number(1)}), "error 438");
  const Mock_Pointer busy = Make_Mock({{"", [](auto&) -> VARIANT { throw Mock_Failure{50290}; }}});
  EXPECT_EQ(Text_Of_Call(*object_.get(), "Max", {Object(busy), Number(1)}), "error 50290");
  for (const unsigned gone : {0x800706BAu, 0x800706BEu, 0x80010108u}) {
    const Mock_Pointer dead =
        Make_Mock({{"", [=](auto&) -> VARIANT { throw Mock_Status{static_cast<HRESULT>(gone)}; }}});
    EXPECT_EQ(Text_Of_Call(*object_.get(), "Max", {Object(dead), Number(1)}), "error 429") << gone;
  }
}

}  // namespace
}  // namespace quorvex::windows
