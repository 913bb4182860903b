// A worksheet: cells as typed, their values, and the names defined on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formula/formula.h"
#include "formula/reference.h"
#include "host/host_value.h"

namespace quorvex {

class Worksheet;

/// What is wrong with a cell.
struct Cell_Problem {
  enum class Kind {
    syntax,     // the formula can't be read; `position` tells where in the typed text
    circular,   // the cell depends on itself
    failure,    // a function failed
    reference,  // the formula uses a worksheet or a name that isn't there
    spill,      // the formula gives several values, and a cell among theirs isn't there or blank
  };
  Kind kind = Kind::failure;
  std::string message;
  std::size_t position = 0;
};

/// A formula with its place on a worksheet and what it last gave.
struct Calculation {
  Worksheet* sheet = nullptr;
  Cell_Address address;  // of a cell
  std::string name;      // of a name; empty for a cell
  Formula formula;
  HostValue value = HostValue::Empty();
  std::unique_ptr<Cell_Problem> problem;
  std::unique_ptr<std::vector<std::string>> notes;  // why a token came, and what may surprise
  HostValue spill;                       // the array that a cell's formula gave, if it did
  std::optional<Cell_Address> obstacle;  // the cell that leaves the array no room
  bool spill_moved = false;              // the array filled other cells than before, or otherwise
  bool stale = true;                     // what it last gave doesn't hold any more

  // The state of a recalculation under way: when this formula was reached, 0 for not yet; the
  // earliest one that it leads back to; and whether it waits for others.
  std::size_t order = 0;
  std::size_t earliest = 0;
  bool open = false;
  bool updated = false;  // calculated by it
};

/// A cell that is not blank.
struct Cell {
  std::string typed;
  HostValue constant;                        // if it holds no formula
  std::unique_ptr<Calculation> calculation;  // if it holds a formula that can be read
  std::unique_ptr<Cell_Problem> problem;     // of a formula that can't
  std::optional<Cell_Address> spilled_from;  // whose array fills this cell with its constant

  const HostValue& value() const { return calculation ? calculation->value : constant; }
  const Cell_Problem* trouble() const {
    return calculation ? calculation->problem.get() : problem.get();
  }
  /// Whether a formula has given an error or a token, or could not be read.
  bool has_failed() const;
};

/// The value as shown; #CIRCULAR! on a circular reference, #SPILL! for an array without room.
std::string Shown_Value(const Cell& cell);

/// A name and what it refers to: cells, or any other formula.
struct Defined_Name {
  std::string name;
  std::string refers_to;  // with its "="
  std::unique_ptr<Calculation> calculation;
};

class Worksheet {
 public:
  explicit Worksheet(std::string name) : name_(std::move(name)) {}
  Worksheet(const Worksheet&) = delete;
  Worksheet& operator=(const Worksheet&) = delete;

  const std::string& name() const { return name_; }

  /// Fills a cell as if typed by hand. After "=" stands a formula; one that can't be read stays in
  /// the cell with its problem. After an apostrophe stands text. TRUE, FALSE, error literals and
  /// plain or E-form numbers in the user's locale are what they look like, a number too long for
  /// 15 digits being kept as number text; empty text makes the cell blank; all else is text.
  /// Values of formulas are right again after the workbook's `recalculate`. Here and below,
  /// `std::out_of_range` for a cell that no worksheet has.
  void set(Cell_Address address, std::string_view typed);
  /// Fills a cell with text, whatever it looks like.
  void set_text(Cell_Address address, std::string text);
  void clear(Cell_Address address);
  /// Adds to what is told of a formula that can't be read; false if the cell holds none such.
  bool advise(Cell_Address address, std::string_view advice);

  /// The text typed into a cell, a formula with its "="; empty for a blank cell.
  std::string_view typed(Cell_Address address) const;
  /// The value as last calculated; a cell on a circular reference has #REF!.
  const HostValue& value(Cell_Address address) const;
  /// The value as shown; #CIRCULAR! on a circular reference.
  std::string shown(Cell_Address address) const;
  /// Null if all is well.
  const Cell_Problem* problem(Cell_Address address) const;

  /// Has the formula of a cell, if there is one, calculated by the workbook's next `update`.
  void mark_stale(Cell_Address address);

  /// Fills the cells that an array has filled before with its new values, so that formulas that are
  /// calculated after it see them; `spill` does the rest.
  void refill(const Calculation& calculation);

  /// Fills the cells right of and below formulas that gave arrays with their values, and empties
  /// those that none fills any more. An array of which a cell isn't free fills none, and is told
  /// the obstacle; blank and empty values need no room. True if formulas may have to be calculated
  /// again.
  bool spill();

  /// How many formulas gave arrays that fill cells, or have no room to.
  std::size_t count_spills() const;

  /// Makes formulas circular whose arrays filled other cells at the last `spill` than before.
  void mark_moved_spills();

  /// The smallest block that holds all cells that aren't blank; nothing if there are none.
  std::optional<Cell_Area> used_range() const;
  /// The cells that aren't blank, row by row.
  const std::map<Cell_Address, Cell>& cells() const { return cells_; }

  /// Defines a name, or redefines it. `refers_to` is a formula, its "=" optional. Throws
  /// `Syntax_Error` for a formula that can't be read, `std::invalid_argument` for what can't be a
  /// name.
  void define_name(std::string_view name, std::string_view refers_to);
  /// Looked up without regard to case; null if there is none.
  const Defined_Name* find_name(std::string_view name) const;
  /// By their capitals.
  const std::map<std::string, Defined_Name>& names() const { return names_; }

 private:
  Cell& cell_at(Cell_Address address);
  const Cell* find(Cell_Address address) const;
  void set_formula(Cell_Address address, std::string_view typed);

  std::string name_;
  std::map<Cell_Address, Cell> cells_;
  std::map<std::uint32_t, std::size_t> cells_in_column_;
  std::map<std::string, Defined_Name> names_;
};

/// A range over cells of a worksheet, which reads their values when asked. The worksheet must
/// outlive it.
HostValue Range_Of(const Worksheet& sheet, const Cell_Area& area);

}  // namespace quorvex
