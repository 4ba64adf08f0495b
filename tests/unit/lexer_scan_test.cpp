// The edges of the lexer's and the reader's wide scans: tokens that cross
// blocks of eight or sixteen bytes or end the text, reportable bytes at
// every place of a block, keywords found by hash, runs of plain text.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "front/lexer.h"
#include "lexer_test_util.h"
#include "preprocessor_test_util.h"

namespace ycc {
namespace {

// Each token after every indentation from 0 to 40 bytes (a tab among the
// spaces from 9 on), then at the end of the text, before a newline, and
// before a long run of blanks and one more name.
TEST(LexerScan, TokensAcrossBlocks) {
  struct Case {
    const char* text;
    const char* token;
  };
  const Case cases[] = {
      {"x", "IDENTIFIER:x"},
      {"added_length", "ADDED_LENGTH:added_length"},
      {"added_lengthx", "IDENTIFIER:added_lengthx"},
      {"unsigned", "UNSIGNED:unsigned"},
      {"unsignet", "IDENTIFIER:unsignet"},
      {"abcdefghijklmnopqrstu", "IDENTIFIER:abcdefghijklmnopqrstu"},
      {"1234567890123", "DECIMALINT:1234567890123"},
      {"0x1fU", "HEXADECIMAL:0x1fU"},
      {"1.5e+3L", "FLOATONE:1.5e+3L"},
      {"7e", "DECIMALINT:7 IDENTIFIER:e"},
      {"<<=", "SHIFTLEFTEQUAL:<<="},
      {"===", "MOVE:==="},
      {"...", "ELLIPSIS:..."},
      {"..", "DOT:. DOT:."},
      {"|=", "BITWISEOREQUAL:|="},
      {"&", "BITWISEAND:&"},
      {";", "SEMICOLON:;"},
      {"\"a\\\"b\"", "STRING:\"a\\\"b\""},
      {"'c'", "CHARACTER:'c'"},
      {"#$", "GARBAGE:#$"},
  };
  for (const Case& c : cases)
    for (size_t indent = 0; indent <= 40; ++indent) {
      std::string lead(indent, ' ');
      if (indent > 8) lead[indent - 9] = '\t';
      for (const char* tail : {"", "\n", "                 \t  y"}) {
        std::string text = lead + c.text + tail;
        std::string expect;
        for (std::string_view t(c.token); !t.empty();) {
          size_t space = t.find(' ');
          if (!expect.empty()) expect += ' ';
          expect += std::string(t.substr(0, space)) + "@0";
          t = space == std::string_view::npos ? "" : t.substr(space + 1);
        }
        if (tail[0] == ' ') expect += " IDENTIFIER:y@0";
        for (auto lex : {tokenize, tokenize_as_read}) {
          FileTable files;
          std::ostringstream err;
          TokenBuffer b = lex(text, files, err);
          EXPECT_EQ(describe(b, true), expect) << "text: '" << text << "'";
          EXPECT_EQ(err.str(), "");
        }
      }
    }
}

// A byte that begins no token, at every place of three blocks of sixteen:
// reported at once, before any token is read, when lexed as read.
TEST(LexerScan, ReportableBytesEverywhere) {
  struct Case {
    char byte;
    bool reported;
  };
  const Case cases[] = {{'\x01', true}, {'\r', true},  {'\x7f', true}, {'\x80', true}, {'\xff', true},
                        {'\0', true},   {'\x1f', true}, {'\n', false},  {'\t', false},  {'~', false},
                        {'}', false},   {' ', false}};
  for (const Case& c : cases)
    for (size_t at = 0; at < 48; ++at) {
      std::string text(64, ' ');
      for (size_t i = 1; i < text.size(); i += 4) text[i] = 'a';
      text[at] = c.byte;
      FileTable files;
      std::ostringstream err;
      TokenBuffer b = tokenize_as_read(text, files, err);
      std::string expect = c.reported ? std::string("invalid token near line 0 (text was '") + c.byte + "')\n" : "";
      EXPECT_EQ(err.str(), expect) << "byte " << static_cast<int>(static_cast<unsigned char>(c.byte)) << " at " << at;
      EXPECT_EQ(b.tokens.back().tok, T_Eof);
      EXPECT_EQ(err.str(), expect);
    }
}

// The word of the extern pragmas at every place of a block, or broken.
TEST(LexerScan, ExternWordAnywhere) {
  for (size_t at = 0; at < 40; ++at)
    for (const char* word : {"extern_o", "extern_x", "xtern_o", "extern_on"})
      for (bool odd : {false, true}) {
        std::string text = std::string(at, 'e') + word + std::string(20, ' ');
        if (odd) text[text.size() - 1] = '\x02';
        FileTable files;
        std::ostringstream err;
        TokenBuffer b = tokenize_as_read(text, files, err);
        bool found = text.find("extern_o") != std::string::npos;
        EXPECT_EQ(b.extern_pragmas, found) << text;
      }
}

// Every keyword of the token table, and names one byte off from it.
TEST(LexerScan, KeywordsByHash) {
  for (int tok = 0; tok < 128; ++tok) {
    std::string_view k = token_spelling(tok);
    if (k.empty() || !(k[0] >= 'a' && k[0] <= 'z')) continue;
    std::string word(k);
    std::string last_changed = word;
    last_changed.back() = last_changed.back() == 'z' ? 'y' : 'z';
    const std::pair<std::string, int> cases[] = {{word, tok},
                                                 {word + "x", T_IDENTIFIER},
                                                 {word.substr(0, word.size() - 1), -1},
                                                 {last_changed, T_IDENTIFIER},
                                                 {"_" + word, T_IDENTIFIER}};
    for (const auto& [text, want] : cases) {
      FileTable files;
      std::ostringstream err;
      TokenBuffer b = tokenize(text, files, err);
      if (want >= 0) EXPECT_EQ(static_cast<int>(b.tokens[0].tok), want) << text;
      else EXPECT_TRUE(b.tokens[0].tok == T_IDENTIFIER || token_spelling(b.tokens[0].tok) == text) << text;
      EXPECT_EQ(b.tokens[0].text(), text);
    }
  }
}

// Made a block at a time as read, the tokens and their lines are the ones
// made at once, past several blocks and across line directives.
TEST(LexerScan, AsReadMatchesAtOnce) {
  std::string text = "#line 5 \"a.yc\"\n";
  for (int i = 0; i < 6000; ++i) {
    text += "x" + std::to_string(i) + " = (a <<= 1.5) ;\n";
    if (i % 1000 == 999) text += "#line " + std::to_string(i) + " \"b.yc\"\n";
  }
  FileTable files1, files2;
  std::ostringstream err1, err2;
  TokenBuffer all = tokenize(text, files1, err1);
  TokenBuffer read = tokenize_as_read(text, files2, err2);
  size_t n = 0;
  for (; read.tokens.contains(n); ++n) {
    ASSERT_TRUE(all.tokens.contains(n));
    EXPECT_EQ(read.tokens[n].tok, all.tokens[n].tok) << n;
    EXPECT_EQ(read.tokens[n].text(), all.tokens[n].text()) << n;
    EXPECT_EQ(read.tokens[n].line, all.tokens[n].line) << n;
  }
  EXPECT_EQ(n, all.tokens.size());
  EXPECT_EQ(n, 6000u * 8 + 1);
}

// Plain text with long indentation, a continuation right after a token, and
// blanks at the end of a line or the text (dropped), at every offset around
// a block.
TEST(ReaderPlainRun, Offsets) {
  struct Case {
    std::string source;
    std::string body;
  };
  for (size_t indent = 0; indent <= 20; ++indent) {
    std::string lead(indent, ' ');
    const Case cases[] = {
        {lead + "a = b;\n" + lead + "c++;\n", lead + "a = b;\n" + lead + "c++;\n"},
        {lead + "ab\\\ncd e\n", lead + "abcd e\n"},
        {lead + "x +\\\n y\n", lead + "x + y\n"},
        {"f(1) " + lead + "\n" + lead + "g;\n", "f(1)\n" + lead + "g;\n"},
        {lead + "0x1e+5 .5e-2 q" + lead, lead + "0x1e+5 .5e-2 q\n"},
        {lead + "__LINE__ x\n", lead + "1 x\n"},
    };
    for (const Case& c : cases) {
      test::PpRun r = test::run_pp(c.source);
      EXPECT_EQ(test::body(r), c.body) << "source: '" << c.source << "'";
      EXPECT_EQ(r.messages, "");
    }
  }
}

}  // namespace
}  // namespace ycc
