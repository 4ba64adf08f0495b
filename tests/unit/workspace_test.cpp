#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "common/text.h"
#include "output/workspace.h"

namespace ycc {
namespace {

const std::string header =
    "\n#define FALSE 0\n#define TRUE 1\n#include <stdio.h>\n#include <stdlib.h>\n#include <string.h>";

// A workspace, and a place for the output file.
struct Fixture {
  Options options;
  std::ostringstream err;
  Diagnostics diag{err, options};
  std::unique_ptr<Workspace> ws;
  std::string out_name;

  Fixture() {
    out_name = (std::filesystem::temp_directory_path() /
                ("ycc_ws_" + std::to_string(reinterpret_cast<uintptr_t>(this)) + ".c"))
                   .string();
  }
  ~Fixture() { std::remove(out_name.c_str()); }
  Workspace& make() {
    ws = std::make_unique<Workspace>(options, diag);
    ws->reset();
    return *ws;
  }
  std::string work_text() { return ws->work_text(); }
  std::string assemble() {
    ws->assemble(out_name);
    std::string text;
    int e;
    EXPECT_TRUE(read_file(out_name, text, e));
    return text;
  }
  // The output after the fixed header (no meta types in use).
  std::string body() {
    std::string all = assemble();
    EXPECT_EQ(all.substr(0, header.size()), header);
    return all.substr(std::min(all.size(), header.size()));
  }
};

// One way of filling the workspace and the output text after the header.
struct AssemblyCase {
  const char* name;
  std::function<void(Workspace&)> fill;
  const char* body;
};

class Assembly : public ::testing::TestWithParam<AssemblyCase> {};

TEST_P(Assembly, Body) {
  Fixture f;
  GetParam().fill(f.make());
  EXPECT_EQ(f.body(), GetParam().body) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Table, Assembly,
    ::testing::Values(
        AssemblyCase{"empty_merge_slot_leaves_no_line",
                     [](Workspace& ws) {
                       ws.start_output();
                       ws.put_text('y', "int x;");
                     },
                     "\n\nint x;\n\n"},
        AssemblyCase{"globals_slot_replaces_its_marker",
                     [](Workspace& ws) {
                       ws.start_output();
                       ws.put_text('y', "int x;");
                       ws.globals += "\nint g;";
                     },
                     "\n\nint g;\nint x;\n\n"},
        AssemblyCase{"function_slots_keep_their_text_across_functions",
                     [](Workspace& ws) {
                       ws.start_output();
                       for (const char* name : {"f", "g"}) {
                         ws.put_text('y', std::string("void ") + name + "(void)");
                         ws.start_function();
                         ws.put_text('y', "{");
                         ws.open_function_body();
                         ws.wd_locals += std::string("int ") + name + ";\n";
                         if (*name == 'f') ws.wd_init_code += "f = 1;\n";
                         ws.put_text('y', "}");
                       }
                     },
                     "\n\nvoid f(void)\n{\nint f;\n\nf = 1;\n\n}\nvoid g(void)\n{\nint g;\n\n\n}\n\n"},
        AssemblyCase{"resize_function_after_source_functions",
                     [](Workspace& ws) {
                       ws.start_output();
                       ws.start_resize_function("static void zzzz_resize1(void)");
                       ws.resize_locals += "unsigned i;\n";
                       ws.to_deferred = true;
                       ws.put_text('n', "i = 0;\n}");
                       ws.to_deferred = false;
                       ws.put_text('y', "int x;");
                     },
                     "\n\nint x;\n\n\nstatic void zzzz_resize1(void)\n{\nunsigned i;\ni = 0;\n}\n"},
        AssemblyCase{"merge_marker_in_dropped_part_still_replaced",
                     [](Workspace& ws) {
                       ws.put_text('n', "\n##e");
                       ws.start_output();
                       ws.globals += "int g;\n";
                       ws.put_text('n', "dropped\n##f\nZ");
                     },
                     "\nint g;\nZ\n\n"}));

TEST(WorkspaceAssembly, FileWithErrorsHoldsOneNewline) {
  Fixture f;
  Workspace& ws = f.make();
  ws.start_output();
  ws.put_text('y', "int x;");
  f.diag.errors = 1;
  ws.put_text('y', "int y;");
  EXPECT_EQ(f.assemble(), "\n");
}

TEST(WorkspaceAssembly, MetaRecordTypesForEachDimensionCount) {
  Fixture f;
  Workspace& ws = f.make();
  ws.set_prefix("ab");
  ws.note_dimensions(2);
  ws.note_dimensions(1);
  EXPECT_EQ(f.assemble(), header +
                              "\nstruct ab1D_meta {\n   void *ptr;\n   unsigned occurs;\n   unsigned limit1;\n};\n"
                              "\nstruct ab2D_meta {\n   void *ptr;\n   unsigned limit1;\n   unsigned limit2;\n};\n"
                              "\n\n");
}

TEST(WorkspaceAssembly, SupportFunctionGeneratorsFollowTheOptions) {
  for (bool on : {true, false}) {
    Fixture f;
    f.options.memory_locations = on;
    f.options.bounds_checks = on;
    Workspace& ws = f.make();
    ws.generate_out_of_memory = [](Workspace& w) { w.deferred += "OOM"; };
    ws.generate_bounds_exceeded = [](Workspace& w) { w.deferred += "+BE"; };
    EXPECT_EQ(f.body(), on ? "\nOOM+BE\n" : "\n\n") << on;
  }
}

struct RegionCase {
  const char* name;
  const char* work;
  bool bounds_checks;
  const char* kept;
};

class Regions : public ::testing::TestWithParam<RegionCase> {};

TEST_P(Regions, KeepOrDrop) {
  Fixture f;
  f.options.bounds_checks = GetParam().bounds_checks;
  Workspace& ws = f.make();
  ws.put_text('n', GetParam().work);
  // The work text ends with the newline of the empty deferred text.
  EXPECT_EQ(f.body(), std::string(GetParam().kept) + "\n\n") << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Table, Regions,
    ::testing::Values(
        RegionCase{"d_checks_on", "\n##d\nP1\n##b\nP2\n##c\nZ", true, "\nP1\nZ"},
        RegionCase{"d_checks_off", "\n##d\nP1\n##b\nP2\n##c\nZ", false, "\nP1\nP2\nZ"},
        RegionCase{"a_checks_on", "\n##a\nP1\n##b\nP2\n##c\nZ", true, "\nP2\nZ"},
        RegionCase{"a_checks_off", "\n##a\nP1\n##b\nP2\n##c\nZ", false, "\nP2\nZ"},
        RegionCase{"m_like_a", "\n##m\nP1\n##b\nP2\n##c\nZ", true, "\nP2\nZ"},
        RegionCase{"e_drops", "\n##e\nO1\n##f\nZ", true, "\nZ"},
        RegionCase{"n_drops", "\n##n\nO1\nO2\n##f\nZ", false, "\nZ"},
        RegionCase{"g_keeps", "\n##g\nO1\n##f\nZ", true, "\nO1\nZ"},
        RegionCase{"h_part2", "\n##h\nP1\n##i\nP2\n##j\nZ", true, "\nP2\nZ"},
        RegionCase{"o_part2_ignores_bounds", "\n##o\nP1\n##i\nP2\n##j\nZ", false, "\nP2\nZ"},
        RegionCase{"k_part1", "\n##k\nP1\n##i\nP2\n##j\nZ", false, "\nP1\nZ"},
        RegionCase{"unknown_letter_dropped", "\n##z\nA\n##\nB", true, "\nA\nB"},
        RegionCase{"other_letters_inside_are_text", "\n##g\n##c\n##b\n##f\nZ", true, "\n##c\n##b\nZ"},
        RegionCase{"other_letters_inside_dropped", "\n##d\nP1\n##b\n##f\nP2\n##c\nZ", true, "\nP1\nZ"},
        RegionCase{"hash_text_not_control", "\n# define x\n#merge_not\nZ", true, "\n# define x\n#merge_not\nZ"},
        RegionCase{"hash_inside_a_line_is_text", "\nx = \"#merge 0\";\n##e\nO\n##f\ny # ##e\nZ", true,
                   "\nx = \"#merge 0\";\ny # ##e\nZ"},
        // A varspace's read checks hold the limit and occurs tests of a one-subscript reference.
        RegionCase{"read_keeps_inner_part2", "\n##a\nG\n##b\n##h\nL\n##i\nO\n##j\n##c\nZ", true, "\nO\nZ"},
        RegionCase{"write_drops_inner", "\n##d\nG\n##b\n##k\nL\n##i\nO\n##j\n##c\nZ", true, "\nG\nZ"},
        RegionCase{"embedded_read_inner", "\n##m\nG\n##b\n##o\nL\n##i\nO\n##j\n##c\nZ", true, "\nO\nZ"},
        RegionCase{"inner_other_letters_are_text", "\n##a\n##b\n##h\n##i\n##f\nO\n##j\n##c\nZ", true,
                   "\n##f\nO\nZ"}));

TEST(WorkspaceAssembly, MergeMarkerInDroppedPartIsStillReplaced) {
  Fixture f;
  Workspace& ws = f.make();
  ws.put_text('n', "\n##e");
  ws.start_output();
  ws.globals += "int g;\n";
  ws.put_text('n', "dropped\n##f\nZ");
  EXPECT_EQ(f.body(), "\nint g;\nZ\n\n");
}

std::string repeat(const std::string& s, int n) {
  std::string out;
  for (int i = 0; i < n; ++i) out += s;
  return out;
}

// The work text is kept in pieces of whole lines: a line that one write
// leaves unfinished when its piece fills (here a marker) moves on whole, and
// regions run on across pieces.
// Past its memory bound (here every finished piece) the work text goes to
// the work file: the result is the same either way.
TEST(WorkspaceAssembly, MarkersAcrossWorkPieces) {
  for (bool spill : {false, true}) {
    Fixture f;
    Workspace& ws = f.make();
    std::FILE* file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    if (spill) ws.attach_work_file(file, 1);
    const std::string lines = "\n" + std::string(1 << 20, 'p');
    ws.put_text('n', lines + "\n##");
    ws.put_text('n', "e\nO\n##f");
    ws.start_output();
    ws.globals += "int g;\n";
    ws.put_text('n', std::string(1 << 19, 'w') + "\n##g\nkept\n##f\nZ");
    EXPECT_EQ(f.work_text(), lines + "\n##e\nO\n##f\n#merge 0\n" + std::string(1 << 19, 'w') +
                                 "\n##g\nkept\n##f\nZ")
        << spill;
    EXPECT_EQ(f.body(), lines + "\nint g;\n" + std::string(1 << 19, 'w') + "\nkept\nZ\n\n") << spill;
    std::fclose(file);
  }
}

// A line longer than a piece is never cut: what follows it on the same
// line is text, not a marker.
TEST(WorkspaceAssembly, LineLongerThanAPieceStaysWhole) {
  Fixture f;
  Workspace& ws = f.make();
  // Many writes, the last of which passes the size of a piece (a quarter megabyte).
  for (int i = 0; i < 262; ++i) ws.put_text('n', std::string(1000, 'x'));
  ws.put_text('n', std::string(38000, 'x'));
  ws.put_text('n', "##e\nO\n##f\nZ");
  EXPECT_EQ(f.body(), std::string(300000, 'x') + "##e\nO\nZ\n\n");
}

// Text written with newline_bgn 'n' at indentation 0, and the work file after it.
struct BreakCase {
  const char* name;
  std::string text;
  std::string work;
};

class LineBreaking : public ::testing::TestWithParam<BreakCase> {};

TEST_P(LineBreaking, WorkText) {
  Fixture f;
  f.make().put_text('n', GetParam().text);
  EXPECT_EQ(f.work_text(), GetParam().work) << GetParam().name;
}

// Column 72 is the blank of the 12th "abcd, "; the comma of the 13th is
// column 77. The string's literal (with an escaped quote) ends at column 98.
// "'\\\\'" closes after an even run of backslashes: its comma is column 75.
INSTANTIATE_TEST_SUITE_P(
    Table, LineBreaking,
    ::testing::Values(
        BreakCase{"after_comma_past_72", repeat("abcd, ", 20),
                  repeat("abcd, ", 12) + "abcd,\n  " + repeat("abcd, ", 7)},
        BreakCase{"not_inside_a_string", "s = \"" + repeat("a, ", 30) + "\\\"\", t, u;",
                  "s = \"" + repeat("a, ", 30) + "\\\"\",\n  t, u;"},
        BreakCase{"character_literal_closes", std::string(70, 'x') + "'\\\\', ','",
                  std::string(70, 'x') + "'\\\\',\n  ','"},
        BreakCase{"no_blank_no_break", std::string(100, 'y'), std::string(100, 'y')},
        BreakCase{"newline_resets_the_column", std::string(70, 'x') + "\n" + repeat("b ", 3),
                  std::string(70, 'x') + "\n" + repeat("b ", 3)}));

// Newlines and quotes are found sixteen bytes at a time: at every offset the
// newline must reset the column and the quote must open the literal.
TEST(WorkspaceWriter, NewlineAndQuoteAtEveryOffset) {
  const std::string literal = "s = \"" + repeat("a, ", 30) + "\\\"\", t, u;";
  const std::string broken = "s = \"" + repeat("a, ", 30) + "\\\"\",\n  t, u;";
  for (int k = 0; k < 20; ++k) {
    Fixture f;
    f.make().put_text('n', std::string(static_cast<size_t>(k), 'x') + "\n" + literal);
    EXPECT_EQ(f.work_text(), std::string(static_cast<size_t>(k), 'x') + "\n" + broken) << k;
  }
}

// The writer copies whole lines at a time; the rule it must keep is stated a
// byte at a time: past column 72, outside literals, a blank or a comma ends
// the line. Random texts of words, blanks, commas, newlines, quotes and
// backslashes, written in random pieces, must come out as the rule says.
std::string broken_by_rule(const std::string& text) {
  std::string out;
  int column = 0, backslashes = 0;
  char quote = 0;
  for (char c : text) {
    out.push_back(c);
    column = c == '\n' ? 0 : column + 1;
    bool was_open = quote != 0;
    if (!was_open) {
      if (c == '\'' || c == '"') quote = c;
    } else if (c == quote && backslashes % 2 == 0) {
      quote = 0;
    }
    backslashes = (was_open && c == '\\') ? backslashes + 1 : 0;
    if (column > 72 && (c == ' ' || c == ',') && quote == 0) {
      out += "\n ";
      column = 1;
    }
  }
  return out;
}

TEST(WorkspaceWriter, WholeLinesAgreeWithTheByteRule) {
  std::uint32_t seed = 12345;
  auto next = [&seed](std::uint32_t below) {
    seed = seed * 1103515245u + 12345u;
    return (seed >> 8) % below;
  };
  const char* pieces[] = {"x", "abcd", "zzzz_false12", " ", ",", "\n", "'", "\"", "\\", ";"};
  const std::uint32_t weights[] = {20, 20, 10, 15, 6, 8, 1, 1, 1, 5};
  for (int round = 0; round < 300; ++round) {
    std::string text;
    size_t length = next(600);
    while (text.size() < length) {
      std::uint32_t pick = next(87), k = 0;
      while (pick >= weights[k]) pick -= weights[k++];
      // Some rounds have long lines, some many short ones.
      if (k == 5 && round % 3 == 0) continue;
      text += pieces[k];
    }
    Fixture f;
    Workspace& ws = f.make();
    for (size_t at = 0; at < text.size();) {
      size_t piece = std::min<size_t>(text.size() - at, 1 + next(90));
      ws.put_text('n', std::string_view(text).substr(at, piece));
      at += piece;
    }
    ASSERT_EQ(f.work_text(), broken_by_rule(text)) << "round " << round << "\n" << text;
  }
}

TEST(WorkspaceWriter, IndentationPrefixSetsTheColumn) {
  Fixture f;
  Workspace& ws = f.make();
  for (int i = 0; i < 4; ++i) ws.indent_in();
  ws.put_text('y', "x;");
  EXPECT_EQ(ws.column(), 14);
  ws.indent_out();
  ws.put_text('y', "y;");
  EXPECT_EQ(f.work_text(), "\n            x;\n         y;");
}

TEST(WorkspaceWriter, IndentationFallsBackPastHalfTheWidth) {
  Fixture f;
  Workspace& ws = f.make();
  std::vector<int> widths;
  for (int i = 0; i < 14; ++i) {
    ws.indent_in();
    widths.push_back(ws.indentation());
  }
  EXPECT_EQ(widths, (std::vector<int>{3, 6, 9, 12, 15, 18, 21, 24, 27, 30, 33, 36, 0, 3}));
  for (int i = 0; i < 5; ++i) ws.indent_out();
  EXPECT_EQ(ws.indentation(), 0);
}

TEST(WorkspaceWriter, DestinationsInOrder) {
  Fixture f;
  Workspace& ws = f.make();
  std::string fragment;
  ws.fragment_sink = [&] { return &fragment; };
  ws.to_fragment = true;
  ws.put_text('n', "a");
  ws.put_text('y', "b");
  ws.to_function_exit = true;
  ws.put_text('n', "exit;");
  ws.to_deferred = true;
  ws.put_text('n', "fn");
  ws.to_deferred = ws.to_function_exit = ws.to_fragment = false;
  ws.put_text('n', "file");
  EXPECT_EQ(fragment, "a\nb");
  EXPECT_EQ(ws.function_exit, "exit;");
  EXPECT_EQ(ws.deferred, "fn");
  EXPECT_EQ(f.work_text(), "file");
}

TEST(WorkspaceWriter, BlockBraceWrittenOnce) {
  Fixture f;
  Workspace& ws = f.make();
  ws.push_block(7);
  EXPECT_EQ(ws.block_first_symbol(), 7);
  ws.open_block_brace();
  ws.open_block_brace();
  ws.push_block(9);
  EXPECT_FALSE(ws.pop_block());
  EXPECT_TRUE(ws.pop_block());
  EXPECT_EQ(f.work_text(), "\n{");
}

// The text of an internal-check failure, without the line number.
std::string check_text(const std::function<void()>& fn) {
  try {
    fn();
  } catch (const FatalError& e) {
    return e.report.substr(0, e.report.rfind(", line"));
  }
  return "no failure";
}

TEST(WorkspaceChecks, InternalChecksNameTheCondition) {
  Fixture f;
  Workspace& ws = f.make();
  EXPECT_EQ(check_text([&] { ws.put_text('x', "t"); }),
            "Assertion failed: newline_bgn == 'y' || newline_bgn == 'n', file yc");
}

TEST(WorkspaceChecks, HalfmegsMustBePositive) {
  Options o;
  o.halfmegs = 0;
  std::ostringstream err;
  Diagnostics d(err, o);
  EXPECT_EQ(check_text([&] { Workspace w(o, d); }),
            "Assertion failed: code_workspace_halfmegs > 0, file yc");
}

TEST(WorkspaceChecks, UnopenableOutputIsFatal) {
  Fixture f;
  Workspace& ws = f.make();
  try {
    ws.assemble("/nonexistent-dir/x.c");
    FAIL() << "no fatal error";
  } catch (const FatalError& e) {
    EXPECT_EQ(e.report,
              "\n ** fatal error:\n unable to open file '/nonexistent-dir/x.c' for output: No such "
              "file or directory\n YARL C compiler terminated\n\n");
  }
}

TEST(WorkspaceReset, EverythingBackToEmpty) {
  Fixture f;
  Workspace& ws = f.make();
  ws.start_output();
  ws.start_function();
  ws.indent_in();
  ws.note_dimensions(3);
  ws.wd_locals = "x";
  ws.reset();
  EXPECT_EQ(ws.merge_count(), 0);
  EXPECT_EQ(ws.indentation(), 0);
  EXPECT_FALSE(ws.output_started());
  EXPECT_TRUE(ws.nothing_emitted());
  EXPECT_EQ(ws.wd_locals, "");
  EXPECT_EQ(ws.curr_wd_locals(), -1);
}

}  // namespace
}  // namespace ycc
