#include "compile/compile_pass.h"

#include <cerrno>
#include <cstdio>
#include <new>

#include "common/text.h"
#include "front/lexer.h"
#include "compile/parse_seam.h"
#include "front/parser.h"
#include "front/syntax_errors.h"

namespace ycc {

namespace {

// Closes a C stream on every way out; a closed tmpfile vanishes.
struct StreamCloser {
  std::FILE* f;
  ~StreamCloser() {
    if (f) std::fclose(f);
  }
};

// Reads the whole intermediate file through a stream opened in text mode.
std::string read_all(std::FILE* f, const std::string& name) {
  std::string text;
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
  if (std::ferror(f))
    fatal(strf("unable to open preprocessed file '%s': %s", name.c_str(),
               system_error_text(errno).c_str()));
  return text;
}

// --dump-tokens: one line per token, "line-code NAME text".
void dump_tokens(const TokenBuffer& tokens, std::ostream& out) {
  for (const Token& t : tokens.tokens) {
    out << t.line << ' ' << token_name(t.tok);
    if (!t.text().empty()) out << ' ' << t.text();
    out << '\n';
  }
}

}  // namespace

void CompileSession::compile_one_file(const Options& options, Diagnostics& diag,
                                      const std::string& intermediate, const std::string& output,
                                      const std::string& source, const std::string& prefix,
                                      std::string* text) {
  try {
    compile(options, diag, intermediate, output, source, prefix, text);
  } catch (const std::bad_alloc&) {
    fatal("insufficient memory");
  } catch (const TokenBufferFailure& f) {
    throw ParserResourceExit{f.report};
  } catch (const ParserOverflow& f) {
    throw ParserResourceExit{f.report};
  }
}

void CompileSession::compile(const Options& options, Diagnostics& diag,
                             const std::string& intermediate, const std::string& output,
                             const std::string& source, const std::string& prefix_arg, std::string* text) {
  const std::string prefix = prefix_arg.empty() ? std::string("zz") : prefix_arg;

  // The anonymous work file: the work text is kept in memory, where it is
  // faster, and goes to this file only past a bound, so memory stays
  // bounded for large outputs.
  StreamCloser work{std::tmpfile()};
  if (!work.f)
    fatal(strf("unable to create temporary work file: %s", system_error_text(errno).c_str()));
  diag.begin_compile();
  if (!workspace_) workspace_ = std::make_unique<Workspace>(options, diag);
  Workspace& ws = *workspace_;
  ws.reset();
  ws.attach_work_file(work.f);
  ws.set_prefix(prefix);

  std::string read;
  if (!text) {
    StreamCloser input{std::fopen(intermediate.c_str(), "r")};
    if (!input.f)
      fatal(strf("unable to open preprocessed file '%s': %s", intermediate.c_str(),
                 system_error_text(errno).c_str()));
    read = read_all(input.f, intermediate);
    text = &read;
  }

  const std::string halted =
      strf(" compilation of '%s' halted\n ** too many errors **\n", source.c_str());
  bool was_halted = false;
  int end_line = 0;  // where the lexer stood at the end of the file
  {
    // The listing of tokens needs them all at once.
    TokenBuffer tokens = options.dump_tokens ? tokenize(std::move(*text), diag.files(), diag.err())
                                             : tokenize_as_read(std::move(*text), diag.files(), diag.err());
    if (options.dump_tokens) dump_tokens(tokens, diag.err());
    try {
      SyntaxErrors syntax(diag);
      ParseContext ctx{options, diag, tokens, syntax, ws, prefix};
      run_start_rule(ctx);
      ++files_compiled_;
    } catch (const CompileHalt&) {
      diag.flush();
      diag.err() << halted;
      was_halted = true;
    }
    end_line = tokens.tokens.back().line;
  }

  if (ws.nothing_emitted()) {
    try {
      diag.error(end_line, "there are no valid declarations or functions");
    } catch (const CompileHalt&) {
      // Step 9 runs after a halt too; the limit is announced once.
      diag.flush();
      if (!was_halted) diag.err() << halted;
    }
  }
  diag.flush();
  diag.end_compile();
  ws.assemble(output);
  ws.reset();
}

}  // namespace ycc
