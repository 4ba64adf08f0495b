#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "front/lexer.h"
#include "front/syntax_errors.h"
#include "lexer_test_util.h"

namespace ycc {
namespace {

struct LexCase {
  const char* input;
  const char* tokens;
};

class LexTokens : public ::testing::TestWithParam<LexCase> {};

// Lexed at once, and as read.
TEST_P(LexTokens, Splits) {
  for (auto lex : {tokenize, tokenize_as_read}) {
    FileTable files;
    std::ostringstream err;
    TokenBuffer b = lex(GetParam().input, files, err);
    EXPECT_EQ(describe(b), GetParam().tokens) << "input: " << GetParam().input;
    EXPECT_EQ(err.str(), "");
    ASSERT_FALSE(b.tokens.empty());
    EXPECT_EQ(b.tokens.back().tok, T_Eof);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Table, LexTokens,
    ::testing::Values(
        LexCase{"a===b", "IDENTIFIER:a MOVE:=== IDENTIFIER:b"},
        LexCase{"a====b", "IDENTIFIER:a MOVE:=== ASSIGNEQUAL:= IDENTIFIER:b"},
        LexCase{"a==b", "IDENTIFIER:a EQUAL:== IDENTIFIER:b"},
        LexCase{"a=b", "IDENTIFIER:a ASSIGNEQUAL:= IDENTIFIER:b"},
        LexCase{"1UL 1LU 0x1fU 1.5e+3L", "DECIMALINT:1UL DECIMALINT:1LU HEXADECIMAL:0x1fU FLOATONE:1.5e+3L"},
        LexCase{"1ul", "DECIMALINT:1 IDENTIFIER:ul"},
        LexCase{"1u", "DECIMALINT:1 IDENTIFIER:u"},
        LexCase{"1ULL", "DECIMALINT:1UL IDENTIFIER:L"},
        LexCase{"0x", "DECIMALINT:0 IDENTIFIER:x"},
        LexCase{"0xg", "DECIMALINT:0 IDENTIFIER:xg"},
        LexCase{"0XABCdefL", "HEXADECIMAL:0XABCdefL"},
        LexCase{"07 123abc", "DECIMALINT:07 DECIMALINT:123 IDENTIFIER:abc"},
        LexCase{"1.5 1. .5 1.F", "FLOATONE:1.5 FLOATONE:1. FLOATONE:.5 FLOATONE:1.F"},
        LexCase{"1e5 1E-2 1e5F 1e", "FLOATTWO:1e5 FLOATTWO:1E-2 FLOATTWO:1e5F DECIMALINT:1 IDENTIFIER:e"},
        LexCase{"1.5f 1.5U", "FLOATONE:1.5 IDENTIFIER:f FLOATONE:1.5 IDENTIFIER:U"},
        LexCase{"a.b ... .. .", "IDENTIFIER:a DOT:. IDENTIFIER:b ELLIPSIS:... DOT:. DOT:. DOT:."},
        LexCase{"While while added_length added_lengthx", "IDENTIFIER:While WHILE:while ADDED_LENGTH:added_length IDENTIFIER:added_lengthx"},
        LexCase{"void const union _x1", "IDENTIFIER:void IDENTIFIER:const IDENTIFIER:union IDENTIFIER:_x1"},
        LexCase{"<<= >>= <= >= << >> < >", "SHIFTLEFTEQUAL:<<= SHIFTRIGHTEQUAL:>>= LESSTHANOREQUALTO:<= GREATERTHANOREQUALTO:>= SHIFTLEFT:<< SHIFTRIGHT:>> LESSTHAN:< GREATERTHAN:>"},
        LexCase{"&&& ||| ++- --+ != !", "AND:&& BITWISEAND:& OR:|| BITWISEOR:| PLUSPLUS:++ MINUS:- MINUSMINUS:-- PLUS:+ NOTEQUAL:!= NOT:!"},
        LexCase{"*= /= %= += -= &= ^= |= ~ ^ ? : ; , { } [ ] ( )", "TIMESEQUAL:*= DIVIDEEQUAL:/= MODEQUAL:%= PLUSEQUAL:+= MINUSEQUAL:-= BITWISEANDEQUAL:&= BITWISEXOREQUAL:^= BITWISEOREQUAL:|= ONESCOMPLEMENT:~ BITWISEXOR:^ QUESTIONMARK:? COLON:: SEMICOLON:; COMMA:, LCURLYBRACE:{ RCURLYBRACE:} LSQUAREBRACKET:[ RSQUAREBRACKET:] LPARENTHESIS:( RPARENTHESIS:)"},
        LexCase{"a/*x\ny*/b//c\nd", "IDENTIFIER:a IDENTIFIER:b IDENTIFIER:d"},
        LexCase{"a /* never closed", "IDENTIFIER:a"},
        LexCase{"#$@\\` x # y", "GARBAGE:#$@\\` IDENTIFIER:x GARBAGE:# IDENTIFIER:y"},
        LexCase{"\"a\\\"b\\\\\" c", "STRING:\"a\\\"b\\\\\" IDENTIFIER:c"},
        LexCase{"\"cut\nx", "STRING:\"cut IDENTIFIER:x"},
        LexCase{"'\\'' '\\\\' 'a'", "CHARACTER:'\\'' CHARACTER:'\\\\' CHARACTER:'a'"},
        LexCase{"'cut\nx", "CHARACTER:'cut IDENTIFIER:x"},
        LexCase{"\"/* not a comment */\"", "STRING:\"/* not a comment */\""}));

// Line codes of each token before Eof.
std::vector<int> lines_of(const TokenBuffer& b) {
  std::vector<int> out;
  for (const Token& t : b.tokens)
    if (t.tok != T_Eof) out.push_back(t.line);
  return out;
}

// Line codes in a fresh file table: "a.yc" gets index 1, the next name 2.
struct LineCase {
  const char* input;
  const char* tokens;
  std::vector<int> lines;
};

class LexLines : public ::testing::TestWithParam<LineCase> {};

TEST_P(LexLines, Codes) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize(GetParam().input, files, err);
  EXPECT_EQ(describe(b), GetParam().tokens) << GetParam().input;
  EXPECT_EQ(lines_of(b), GetParam().lines) << GetParam().input;
}

INSTANTIATE_TEST_SUITE_P(
    Table, LexLines,
    ::testing::Values(
        // Newlines count, also those ending cut constants and inside comments.
        LineCase{"a\n\"s\nb 'c\nd /*\n\n*/ e // x\nf",
                 "IDENTIFIER:a STRING:\"s IDENTIFIER:b CHARACTER:'c IDENTIFIER:d IDENTIFIER:e IDENTIFIER:f",
                 {0, 1, 2, 2, 3, 5, 6}},
        LineCase{"\n#line 1 \"a.yc\"\nx\ny\n#line 10 \"b.h\"\nz\n#line 3 \"a.yc\"\nw",
                 "IDENTIFIER:x IDENTIFIER:y IDENTIFIER:z IDENTIFIER:w", {1000001, 1000002, 2000010, 1000003}},
        // Without a name the file index is kept.
        LineCase{"\n#line 1 \"a.yc\"\nx\n#line 40\ny\n#line\t7\nz", "IDENTIFIER:x IDENTIFIER:y IDENTIFIER:z",
                 {1000001, 1000040, 1000007}},
        // "#line" needs a blank after it and must start a line.
        LineCase{"#line 5\n#line5\nx #line 9\ny",
                 "GARBAGE:# IDENTIFIER:line5 IDENTIFIER:x GARBAGE:# IDENTIFIER:line DECIMALINT:9 IDENTIFIER:y",
                 {5, 5, 6, 6, 6, 6, 7}},
        // Source directives right after a marker line (whose newline it consumed).
        LineCase{"\n#line 1 \"a.yc\"\n#pragma x\nint y;\n#line 20 \"c.yc\"\n#line 7\nz",
                 "INT:int IDENTIFIER:y SEMICOLON:; IDENTIFIER:z", {1000002, 1000002, 1000002, 2000007}},
        LineCase{"\n#line 1 \"a.yc\"\na\n#pragma pack(1) x y\nb", "IDENTIFIER:a IDENTIFIER:b", {1000001, 1000003}},
        // A line number too large for a line code saturates instead of overflowing.
        LineCase{"\n#line 99999999999999999999\nx\n\n\ny", "IDENTIFIER:x IDENTIFIER:y",
                 {2147483647, 2147483647}}));

TEST(LexFiles, NamesKeepTheirIndexAcrossFiles) {
  FileTable files;
  std::ostringstream err;
  tokenize("\n#line 1 \"a.yc\"\nx\n#line 1 \"c.h\"\n", files, err);
  TokenBuffer b = tokenize("\n#line 1 \"b.yc\"\n\n#line 5 \"c.h\"\nq", files, err);
  EXPECT_EQ(lines_of(b), (std::vector<int>{2000005}));
  EXPECT_EQ(files.size(), 4);
  EXPECT_EQ(files.name(3), "b.yc");
}

TEST(LexExtern, RangeAfterLineMarker) {
  FileTable files;
  std::ostringstream err;
  // The preprocessor's layout of an extern include inside a.yc.
  TokenBuffer b = tokenize(
      "\n#line 1 \"a.yc\"\nx\n#line 1 \"e.h\"\n#pragma extern_on\nint h1;\nint h2;\n\n"
      "#pragma extern_off\n\n#line 2 \"a.yc\"\ny",
      files, err);
  EXPECT_EQ(lines_of(b), (std::vector<int>{1000001, 2000001, 2000001, 2000001, 2000002, 2000002,
                                           2000002, 1000002}));
  ASSERT_EQ(b.extern_ranges->ranges.size(), 2u);
  EXPECT_EQ(b.extern_ranges->ranges[0].begin, 2000000);
  EXPECT_EQ(b.extern_ranges->ranges[1].end, 2000004);
  EXPECT_FALSE(b.in_extern_range(1000001));
  EXPECT_TRUE(b.in_extern_range(2000001));
  EXPECT_TRUE(b.in_extern_range(2000003));
  EXPECT_FALSE(b.in_extern_range(2000004));
  EXPECT_FALSE(b.in_extern_range(1000002));
}

TEST(LexExtern, ExternOnAwayFromLineMarkerOpensNothing) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize("\n#line 1 \"a.yc\"\nx\n#pragma extern_on\ny\n#pragma extern_off\nz", files, err);
  EXPECT_EQ(describe(b), "IDENTIFIER:x IDENTIFIER:y IDENTIFIER:z");
  EXPECT_EQ(lines_of(b), (std::vector<int>{1000001, 1000003, 1000005}));
  EXPECT_FALSE(b.in_extern_range(1000003));
}

TEST(LexInvalid, CarriageReturnReportsRawLineCode) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize("\n#line 1 \"a.yc\"\n\nx\r\ny", files, err);
  EXPECT_EQ(err.str(), "invalid token near line 1000002 (text was '\r')\n");
  EXPECT_EQ(describe(b), "IDENTIFIER:x IDENTIFIER:y");
}

TEST(LexInvalid, EachBadByteReportedAndSkipped) {
  FileTable files;
  std::ostringstream err;
  std::string input = std::string("a\f\v") + '\0' + "\x7f\xe9" + "b";
  TokenBuffer b = tokenize(input, files, err);
  EXPECT_EQ(describe(b), "IDENTIFIER:a IDENTIFIER:b");
  std::string expected;
  for (char c : std::string("\f\v") + '\0' + "\x7f\xe9")
    expected += std::string("invalid token near line 0 (text was '") + c + "')\n";
  EXPECT_EQ(err.str(), expected);
}

TEST(LexLimits, VeryLongTokenKeptWhole) {
  FileTable files;
  std::ostringstream err;
  std::string ident(50000, 'q');
  std::string str = "\"" + std::string(30000, 'z') + "\"";
  TokenBuffer b = tokenize(ident + " " + str, files, err);
  ASSERT_EQ(b.tokens.size(), 3u);
  EXPECT_EQ(b.tokens[0].text(), ident);
  EXPECT_EQ(b.tokens[1].text(), str);
}

// Past what a token record holds, a text is seen cut; the token keeps its
// number, and the text after it is lexed as usual.
TEST(LexLimits, TokenPastTheRecordIsSeenCut) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize(std::string(Token::max_text + 5, 'q') + " 7", files, err);
  ASSERT_EQ(b.tokens.size(), 3u);
  EXPECT_EQ(b.tokens[0].tok, T_IDENTIFIER);
  EXPECT_EQ(b.tokens[0].text(), std::string(Token::max_text, 'q'));
  EXPECT_EQ(b.tokens[1].tok, T_DECIMALINT);
  EXPECT_EQ(b.tokens[1].text(), "7");
  EXPECT_EQ(err.str(), "");
}

TEST(LexLimits, EmptyInputIsJustEof) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize("", files, err);
  ASSERT_EQ(b.tokens.size(), 1u);
  EXPECT_EQ(b.tokens[0].tok, T_Eof);
  EXPECT_EQ(b.tokens[0].text(), "");
}

struct SyntaxFixture {
  Options options;
  std::ostringstream err;
  Diagnostics diag{err, options};
  SyntaxErrors syntax{diag};
  SyntaxFixture() { diag.files().intern("a.yc"); }
};

TEST(SyntaxErrorMessages, OncePerLineAndFlushedAtOnce) {
  SyntaxFixture f;
  f.diag.begin_compile();
  f.syntax.at_or_before({"x", T_IDENTIFIER, 1000003});
  EXPECT_EQ(f.err.str(), "\n (line) in 'a.yc'\n (3) **error: syntax error at or before 'x'\n");
  f.syntax.at_or_before({";", T_SEMICOLON, 1000003});
  f.syntax.at_or_before({"", T_Eof, 1000004});
  EXPECT_EQ(f.err.str(),
            "\n (line) in 'a.yc'\n (3) **error: syntax error at or before 'x'\n"
            " (4) **error: syntax error at or before 'end of file'\n");
  EXPECT_EQ(f.diag.errors, 2);
}

TEST(SyntaxErrorMessages, LongTokenCutTo40) {
  SyntaxFixture f;
  f.options.width = 200;
  f.diag.begin_compile();
  std::string text(60, 'k');
  f.syntax.at_or_before({text, T_IDENTIFIER, 1000001});
  EXPECT_NE(f.err.str().find("'" + std::string(40, 'k') + "'"), std::string::npos);
  EXPECT_EQ(f.err.str().find(std::string(41, 'k')), std::string::npos);
}

TEST(SyntaxErrorMessages, TypeMessageHasItsOwnLineMemory) {
  SyntaxFixture f;
  f.diag.begin_compile();
  f.syntax.at_or_before({"x", T_IDENTIFIER, 1000002});
  f.syntax.expecting_type({"x", T_IDENTIFIER, 1000002});
  f.syntax.expecting_type({"y", T_IDENTIFIER, 1000002});
  EXPECT_EQ(f.err.str(),
            "\n (line) in 'a.yc'\n (2) **error: syntax error at or before 'x'\n"
            " (2) **error: syntax error: expecting a type or typedef name, but\n"
            "              found 'x'\n");
}

TEST(SyntaxErrorMessages, CountsTowardsTheErrorLimit) {
  SyntaxFixture f;
  f.options.error_limit = 2;
  f.diag.begin_compile();
  f.syntax.at_or_before({"x", T_IDENTIFIER, 1000001});
  EXPECT_THROW(f.syntax.at_or_before({"y", T_IDENTIFIER, 1000002}), CompileHalt);
}

// Read as a parser reads, giving back what it has passed: every token is
// the one the whole-file lexer makes, and the blocks given back are reused.
TEST(LexAsRead, SameTokensAcrossGivenBackBlocks) {
  std::string text = "\n#line 1 \"a.yc\"\n";
  for (int i = 0; i < 6000; ++i) text += "x" + std::to_string(i) + " = y + 12; /* c\n */ s = \"q\";\n";
  FileTable files;
  std::ostringstream err;
  TokenBuffer whole = tokenize(text, files, err);
  TokenBuffer read = tokenize_as_read(text, files, err);
  size_t n = 0;
  for (size_t i = 0; read.tokens.contains(i); ++i, ++n) {
    ASSERT_TRUE(whole.tokens.contains(i));
    EXPECT_EQ(read.tokens[i].tok, whole.tokens[i].tok) << i;
    EXPECT_EQ(read.tokens[i].text(), whole.tokens[i].text()) << i;
    EXPECT_EQ(read.tokens[i].line, whole.tokens[i].line) << i;
    EXPECT_EQ(read.tokens.index_of(read.tokens[i]), i);
    if (i % 1000 == 0) read.tokens.give_back_before(i);
  }
  EXPECT_EQ(n, whole.tokens.size());
  EXPECT_EQ(read.tokens.tok_at(n), T_Eof);  // past the end
  // Of some fifteen blocks' worth, a few are held, and they are all there
  // ever were.
  const TokenStore& store = read.tokens.store();
  ASSERT_GT(n, 14 * TokenStore::block_size);
  size_t live = static_cast<size_t>(std::count_if(store.blocks.begin(), store.blocks.end(),
                                                  [](const auto& b) { return b != nullptr; }));
  EXPECT_LE(live, 3u);
  EXPECT_LE(live + store.spare.size(), 4u);
  EXPECT_EQ(err.str(), "");
}

// The parser's ways through the list: from one token to the next by address,
// and whole runs of a block at a time, reach the very tokens that indexing
// does, across the blocks' edges and up to Eof.
TEST(LexAsRead, NextAndRunsReachTheIndexedTokens) {
  std::string text = "\n#line 1 \"a.yc\"\n";
  for (int i = 0; i < 3000; ++i) text += "v" + std::to_string(i) + " = w[" + std::to_string(i) + "];\n";
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize_as_read(text, files, err);
  const Token* p = &b.tokens[0];
  size_t i = 0;
  while (p->tok != T_Eof) {
    p = &b.tokens.next(++i, p);
    ASSERT_EQ(p, &b.tokens[i]) << i;
  }
  ASSERT_GT(i, 3 * TokenStore::block_size);
  size_t walked = 0;
  for (auto [run, n] = b.tokens.run_at(0); run; std::tie(run, n) = b.tokens.run_at(walked)) {
    ASSERT_GT(n, 0u);
    EXPECT_LE((walked & (TokenStore::block_size - 1)) + n, TokenStore::block_size);
    for (size_t k = 0; k < n; ++k) ASSERT_EQ(&run[k], &b.tokens[walked + k]) << walked + k;
    walked += n;
  }
  EXPECT_EQ(walked, i + 1);
}

// A text with a byte the lexer reports is lexed at once: the report comes
// before anything else can be said about the file.
TEST(LexAsRead, ReportingTextIsLexedAtOnce) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize_as_read("\n#line 1 \"a.yc\"\n\nx\r\ny", files, err);
  EXPECT_EQ(err.str(), "invalid token near line 1000002 (text was '\r')\n");
  EXPECT_EQ(describe(b), "IDENTIFIER:x IDENTIFIER:y");
}

TEST(LexAsRead, ExternRangesAreKnownWhenAsked) {
  FileTable files;
  std::ostringstream err;
  TokenBuffer b = tokenize_as_read(
      "\n#line 1 \"a.yc\"\nx\n#line 1 \"e.h\"\n#pragma extern_on\nint h1;\n\n#pragma extern_off\n\n#line 2 \"a.yc\"\ny",
      files, err);
  EXPECT_EQ(b.tokens[0].text(), "x");
  EXPECT_TRUE(b.in_extern_range(2000001));
  EXPECT_FALSE(b.in_extern_range(1000002));
  TokenBuffer plain = tokenize_as_read("\n#line 1 \"a.yc\"\nx y", files, err);
  EXPECT_FALSE(plain.extern_pragmas);
  EXPECT_FALSE(plain.in_extern_range(1000001));
}

}  // namespace
}  // namespace ycc
