#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "common/text.h"
#include "front/workspace.h"

namespace ycc {
namespace {

const std::string header =
    "\n#define FALSE 0\n#define TRUE 1\n#include <stdio.h>\n#include <stdlib.h>\n#include <string.h>";

std::string read_stream(std::FILE* f) {
  std::fflush(f);
  std::rewind(f);
  std::string s;
  int c;
  while ((c = std::fgetc(f)) != EOF) s += static_cast<char>(c);
  return s;
}

// A workspace on a fresh work file, and a place for the output file.
struct Fixture {
  Options options;
  std::ostringstream err;
  Diagnostics diag{err, options};
  std::FILE* work = std::tmpfile();
  std::unique_ptr<Workspace> ws;
  std::string out_name;

  Fixture() {
    out_name = (std::filesystem::temp_directory_path() /
                ("ycc_ws_" + std::to_string(reinterpret_cast<uintptr_t>(this)) + ".c"))
                   .string();
  }
  ~Fixture() {
    if (work) std::fclose(work);
    std::remove(out_name.c_str());
  }
  Workspace& make() {
    ws = std::make_unique<Workspace>(options, diag);
    ws->reset();
    ws->attach_work_file(work);
    return *ws;
  }
  std::string work_text() { return read_stream(work); }
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

TEST(WorkspaceAssembly, EmptyMergeSlotLeavesNoLine) {
  Fixture f;
  Workspace& ws = f.make();
  ws.start_output();
  ws.put_text('y', "int x;");
  EXPECT_EQ(f.work_text(), "\n#merge 0\n\nint x;");
  EXPECT_EQ(f.body(), "\n\nint x;\n\n");
}

TEST(WorkspaceAssembly, FilledGlobalsSlotReplacesItsMarker) {
  Fixture f;
  Workspace& ws = f.make();
  ws.start_output();
  ws.put_text('y', "int x;");
  ws.globals += "\nint g;";
  EXPECT_EQ(f.body(), "\n\nint g;\nint x;\n\n");
}

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

TEST(WorkspaceAssembly, FunctionSlotsKeepTheirTextAcrossFunctions) {
  Fixture f;
  Workspace& ws = f.make();
  ws.start_output();
  ws.put_text('y', "void f(void)");
  ws.start_function();
  ws.put_text('y', "{");
  ws.open_function_body();
  ws.wd_locals += "int a;\n";
  ws.wd_init_code += "a = 1;\n";
  ws.put_text('y', "}");
  ws.put_text('y', "void g(void)");
  ws.start_function();
  ws.put_text('y', "{");
  ws.open_function_body();
  ws.wd_locals += "int b;\n";
  ws.put_text('y', "}");
  EXPECT_EQ(ws.curr_wd_locals(), 3);
  EXPECT_EQ(ws.merge(1).data, ws.merge(1).own.get());
  EXPECT_EQ(f.body(),
            "\n\nvoid f(void)\n{\nint a;\n\na = 1;\n\n}\nvoid g(void)\n{\nint b;\n\n\n}\n\n");
}

TEST(WorkspaceAssembly, ResizeFunctionGoesAfterSourceFunctions) {
  Fixture f;
  Workspace& ws = f.make();
  ws.start_output();
  ws.start_resize_function("static void zzzz_resize1(void)");
  ws.resize_locals += "unsigned i;\n";
  ws.to_deferred = true;
  ws.put_text('n', "i = 0;\n}");
  ws.to_deferred = false;
  ws.put_text('y', "int x;");
  EXPECT_EQ(f.body(), "\n\nint x;\n\n\nstatic void zzzz_resize1(void)\n{\nunsigned i;\ni = 0;\n}\n");
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
        RegionCase{"hash_text_not_control", "\n# define x\n#merge_not\nZ", true, "\n# define x\n#merge_not\nZ"}));

TEST(WorkspaceAssembly, MergeMarkerInDroppedPartIsStillReplaced) {
  Fixture f;
  Workspace& ws = f.make();
  ws.put_text('n', "\n##e");
  ws.start_output();
  ws.globals += "int g;\n";
  ws.put_text('n', "dropped\n##f\nZ");
  EXPECT_EQ(f.body(), "\nint g;\nZ\n\n");
}

TEST(WorkspaceWriter, LongLineBrokenAfterBlankOrCommaOutsideQuotes) {
  Fixture f;
  Workspace& ws = f.make();
  std::string chunk = "abcd, ";
  std::string text;
  for (int i = 0; i < 20; ++i) text += chunk;
  ws.put_text('y', text);
  // Column 72 is the blank of chunk 12; the comma of chunk 13 is column 77.
  std::string first;
  for (int i = 0; i < 12; ++i) first += chunk;
  std::string rest;
  for (int i = 0; i < 7; ++i) rest += chunk;
  EXPECT_EQ(f.work_text(), "\n" + first + "abcd,\n  " + rest);
}

TEST(WorkspaceWriter, StringHoldingCommaBlankNeverBroken) {
  Fixture f;
  Workspace& ws = f.make();
  std::string inside;
  for (int i = 0; i < 30; ++i) inside += "a, ";
  std::string text = "s = \"" + inside + "\\\"\", t, u;";
  ws.put_text('n', text);
  // The literal (with an escaped quote) ends at column 98; the comma after it breaks.
  EXPECT_EQ(f.work_text(), "s = \"" + inside + "\\\"\",\n  t, u;");
}

TEST(WorkspaceWriter, CharacterLiteralAndBackslashPairs) {
  Fixture f;
  Workspace& ws = f.make();
  std::string pad(70, 'x');
  ws.put_text('n', pad + "'\\\\', ','");
  // "'\\'" closes after an even run of backslashes, so the comma at column 75 breaks.
  EXPECT_EQ(f.work_text(), pad + "'\\\\',\n  ','");
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
  int frag = ws.new_fragment();
  ws.to_fragment = true;
  ws.put_text('n', "a");
  ws.put_text('y', "b");
  ws.to_function_exit = true;
  ws.put_text('n', "exit;");
  ws.to_deferred = true;
  ws.put_text('n', "fn");
  ws.to_deferred = ws.to_function_exit = ws.to_fragment = false;
  ws.put_text('n', "file");
  EXPECT_EQ(ws.fragment_text(frag), "a\nb");
  EXPECT_EQ(ws.wtext_has_user(), 'n');
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
  ws.new_fragment();
  ws.new_fragment();
  EXPECT_EQ(check_text([&] { ws.put_text('x', "t"); }),
            "Assertion failed: newline_bgn == 'y' || newline_bgn == 'n', file yc");
  EXPECT_EQ(check_text([&] { ws.release_work_text(0); }),
            "Assertion failed: wtext_has_user == 'y' && code[sub].text == wtext, file yc");
  ws.take_work_text(0);
  EXPECT_EQ(check_text([&] { ws.take_work_text(1); }), "Assertion failed: wtext_has_user == 'n', file yc");
  EXPECT_EQ(check_text([&] { ws.release_work_text(1); }),
            "Assertion failed: wtext_has_user == 'y' && code[sub].text == wtext, file yc");
  EXPECT_EQ(check_text([&] { ws.truncate_fragments(3); }),
            "Assertion failed: new_cnt >= 0 && new_cnt <= code_cnt, file yc");
  EXPECT_EQ(check_text([&] { ws.truncate_fragments(-1); }),
            "Assertion failed: new_cnt >= 0 && new_cnt <= code_cnt, file yc");
  ws.truncate_fragments(0);
  EXPECT_EQ(ws.code_cnt(), 0);
  EXPECT_EQ(ws.wtext_has_user(), 'n');
}

TEST(WorkspaceChecks, HalfmegsMustBePositive) {
  Options o;
  o.halfmegs = 0;
  std::ostringstream err;
  Diagnostics d(err, o);
  EXPECT_EQ(check_text([&] { Workspace w(o, d); }),
            "Assertion failed: code_workspace_halfmegs > 0, file yc");
}

TEST(WorkspaceChecks, TakeAndReleaseMoveTheText) {
  Fixture f;
  Workspace& ws = f.make();
  int n = ws.new_fragment();
  ws.code[0].text = "abc";
  ws.take_work_text(n);
  EXPECT_EQ(ws.wtext, "abc");
  EXPECT_EQ(&ws.fragment_text(n), &ws.wtext);
  ws.wtext += "def";
  ws.release_work_text(n);
  EXPECT_EQ(ws.code[0].text, "abcdef");
  EXPECT_EQ(ws.wtext_has_user(), 'n');
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
  ws.new_fragment();
  ws.note_dimensions(3);
  ws.wd_locals = "x";
  ws.reset();
  EXPECT_EQ(ws.merge_count(), 0);
  EXPECT_EQ(ws.code_cnt(), 0);
  EXPECT_EQ(ws.indentation(), 0);
  EXPECT_FALSE(ws.output_started());
  EXPECT_TRUE(ws.nothing_emitted());
  EXPECT_EQ(ws.wd_locals, "");
  EXPECT_EQ(ws.curr_wd_locals(), -1);
}

}  // namespace
}  // namespace ycc
