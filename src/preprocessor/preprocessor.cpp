#include "preprocessor/preprocessor.h"

#include <cerrno>
#include <cstdio>
#include <ctime>

#include "common/file_time.h"
#include "common/text.h"
#include "preprocessor/pp_state.h"
#include "preprocessor/text_scan.h"

namespace ycc {

namespace pp {

void Writer::flush_held() {
  out += held_;
  held_.clear();
  string_open_ = false;
}

void Writer::token(std::string_view text, int blanks, bool is_string) {
  if (is_string && string_open_) {
    held_.append(static_cast<size_t>(pending_newlines), '\n');
    held_.append(static_cast<size_t>(blanks), ' ');
    pending_newlines = 0;
    out.pop_back();
    out.append(text.substr(1));
    return;
  }
  if (!held_.empty() || string_open_) flush_held();
  // Most tokens follow one blank or none: no general append for those.
  if (pending_newlines > 0) out.append(static_cast<size_t>(pending_newlines), '\n');
  pending_newlines = 0;
  if (blanks == 1)
    out.push_back(' ');
  else if (blanks > 1)
    out.append(static_cast<size_t>(blanks), ' ');
  out.append(text);
  // Only a closed literal takes part in joining.
  string_open_ = is_string && text.size() >= 2 && text.back() == '"';
}

void Writer::expansion(std::string_view s, int blanks) {
  size_t i = 0;
  int b = blanks;
  while (i < s.size()) {
    if (is_blank(s[i])) {
      ++b;
      ++i;
      continue;
    }
    size_t e;
    bool is_string = false;
    if (s[i] == '"' || s[i] == '\'') {
      e = skip_quoted(s, i);
      is_string = s[i] == '"';
    } else {
      e = i;
      while (e < s.size() && !is_blank(s[e]) && s[e] != '"' && s[e] != '\'') ++e;
    }
    token(s.substr(i, e - i), b, is_string);
    b = 0;
    i = e;
  }
}

void Writer::directive_line(std::string_view text) {
  flush_held();
  out.append(static_cast<size_t>(pending_newlines), '\n');
  pending_newlines = 0;
  out.append(text);
}

void Writer::plain(std::string_view text) {
  if (!held_.empty() || string_open_) flush_held();
  if (pending_newlines > 0) out.append(static_cast<size_t>(pending_newlines), '\n');
  pending_newlines = 0;
  out.append(text);
}

void Writer::raw(std::string_view text) {
  flush_held();
  out.append(text);
}

std::string_view first_token(std::string_view text) {
  size_t s = skip_blanks(text, 0);
  if (s >= text.size()) return {};
  char c = text[s];
  size_t e;
  if (c == '"' || c == '\'')
    e = skip_quoted(text, s);
  else if (is_ident_start(c))
    e = skip_ident(text, s);
  else if (is_digit(c))
    e = skip_number(text, s);
  else
    e = s + 1;
  return text.substr(s, e - s);
}

Preprocessor::Preprocessor(const Options& options, Diagnostics& diag, PpJob& job)
    : options_(options),
      diag_(diag),
      job_(job),
      expander_(table_, ExpandHooks{[this](const std::string& t) { report(cur_line_, t); },
                                    [this] { return top().name; }, [this] { return cur_line_; }}) {
  // __DATE__ and __TIME__ hold the moment this file's preprocessing starts.
  std::time_t now = std::time(nullptr);
  std::tm local = *std::localtime(&now);
  char date[64], time[64];
  std::strftime(date, sizeof date, "%b %d %Y", &local);
  std::strftime(time, sizeof time, "%H:%M:%S", &local);
  table_.set_up(options.defines, date, time);
  search_ = search_path_for(job.source_name, options.include_dirs);
}

void Preprocessor::report(int line, const std::string& text) {
  FileEntry& e = top();
  PpPlace place{&e.name, line, &e.heading};
  diag_.pp_error(text, &place);
}

void Preprocessor::push_file(std::string name, std::string text, bool is_extern) {
  if (!text.empty() && text.back() != '\n') text += '\n';
  bool include = !files_.empty();
  auto entry = std::make_unique<FileEntry>(
      std::move(name), std::move(text), is_extern,
      [this](int line, const std::string& t) { report(line, t); });
  entry->errors_at_open = diag_.pp_errors;
  writer_.pending_newlines = 0;
  writer_.raw(strf("\n#line 1 \"%s\"\n", entry->name.c_str()));
  if (is_extern && ++extern_depth_ == 1) writer_.raw("#pragma extern_on\n");
  if (include) {
    std::string opened = host_path(entry->name);
    if (includes_seen_.insert(opened).second) job_.includes_read.push_back(std::move(opened));
  }
  // /T: an include newer than the output makes the file out of date.
  if (include && job_.compile_flag == 'n') {
    std::int64_t t = file_mtime(host_path(entry->name));
    if (t != 0 && t > job_.output_time) job_.compile_flag = 'y';
  }
  files_.push_back(std::move(entry));
}

void Preprocessor::end_of_file() {
  FileEntry& e = top();
  if (!e.conds.empty()) {
    int last = e.reader.last_line();
    for (size_t i = e.conds.size(); i-- > 0;) {
      const Cond& c = e.conds[i];
      const char* what = c.kind == 'i' ? "#if" : c.kind == 'd' ? "#ifdef" : "#ifndef";
      report(last, strf("the %s at line %d is missing its #endif", what, c.line));
    }
  }
  writer_.pending_newlines = 0;
  writer_.raw("\n");
  if (files_.size() == 1) {
    write_intermediate();
    files_.pop_back();
    return;
  }
  if (e.is_extern && --extern_depth_ == 0) writer_.raw("\n#pragma extern_off\n");
  bool had_errors = diag_.pp_errors > e.errors_at_open;
  files_.pop_back();
  FileEntry& parent = top();
  writer_.raw(strf("\n#line %d \"%s\"\n", parent.reader.line(), parent.name.c_str()));
  if (had_errors) parent.heading = false;
}

void Preprocessor::write_intermediate() {
  if (job_.intermediate_name.empty()) {
    job_.intermediate_text = std::move(writer_.out);
    return;
  }
  std::string path = host_path(job_.intermediate_name);
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) {
    report(top().reader.last_line(), strf("output file '%s' : %s", job_.intermediate_name.c_str(),
                                          system_error_text(errno).c_str()));
    return;
  }
  const std::string& out = writer_.out;
  bool ok = std::fwrite(out.data(), 1, out.size(), f) == out.size();
  int err = errno;
  if (std::fclose(f) != 0 && ok) {
    ok = false;
    err = errno;
  }
  if (ok) {
    job_.intermediate_written = true;
    // The compile pass reads the same text without reading the file back.
    job_.intermediate_text = std::move(writer_.out);
    return;
  }
  // A truncated intermediate file is of no use, even with /P.
  std::remove(path.c_str());
  report(top().reader.last_line(),
         strf("output file '%s' : %s", job_.intermediate_name.c_str(), system_error_text(err).c_str()));
}

void Preprocessor::run() {
  // The output is about as long as the source; includes grow it further.
  writer_.out.reserve(job_.source_text.size() + job_.source_text.size() / 8 + 256);
  push_file(job_.source_name, std::move(job_.source_text), false);
  while (!files_.empty()) {
    FileEntry& e = top();
    bool active = e.active();
    Token tok = e.reader.next(active);
    writer_.pending_newlines += tok.newlines;
    if (tok.kind == Tok::end) {
      end_of_file();
      continue;
    }
    bool line_start = tok.newlines > 0 || e.first_token;
    e.first_token = false;
    cur_line_ = tok.line;
    if (line_start && tok.kind == Tok::punct && tok.text == "#") {
      directive(tok);
      continue;
    }
    if (!active) continue;
    ordinary_token(tok);
    // What follows on the line is mostly plain text: copied in one piece.
    std::string_view run = e.reader.plain_run([this](std::string_view w) { return table_.may_define(w); });
    if (!run.empty()) writer_.plain(run);
  }
}

void Preprocessor::ordinary_token(const Token& tok) {
  if (tok.kind == Tok::ident && table_.may_define(tok.text)) {
    Macro* m = table_.find(tok.text);
    if (m && !m->expanding) {
      switch (m->kind) {
        case Macro::Kind::file:
        case Macro::Kind::line:
          writer_.expansion(expander_.builtin_text(*m), tok.blanks);
          return;
        case Macro::Kind::defined:
          break;
        case Macro::Kind::ordinary:
          if (m->function_like) {
            invocation(*m, tok);
          } else {
            writer_.expansion(expander_.rescan(m->replacement, m), tok.blanks);
          }
          return;
      }
    }
  }
  writer_.token(tok.text, tok.blanks, tok.kind == Tok::string);
}

// A function-like macro in the source: its "(" and arguments may stand on
// later lines; they are read token by token. Without "(" the name stays.
void Preprocessor::invocation(Macro& m, const Token& name_tok) {
  FileEntry& e = top();
  std::string name(name_tok.text);
  int name_blanks = name_tok.blanks;
  int name_line = name_tok.line;
  if (e.no_calls) {
    writer_.token(name, name_blanks, false);
    return;
  }
  Reader::State after_name = e.reader.save();
  Token open = e.reader.next(true);
  if (open.kind != Tok::punct || open.text != "(") {
    e.reader.restore(after_name);
    writer_.token(name, name_blanks, false);
    return;
  }
  int newlines = open.newlines;
  bool across = newlines > 0;
  ArgCollector col(m);
  ArgFault fault = ArgFault::none;
  std::string found;
  int fault_line = name_line;
  while (!col.done()) {
    Token t = e.reader.next(true);
    if (t.kind == Tok::end) {
      fault = col.at_end();
      e.no_calls = true;
      break;
    }
    newlines += t.newlines;
    if (t.newlines > 0) across = true;
    int blanks = t.newlines > 0 ? std::max(t.blanks, 1) : t.blanks;
    fault = col.feed(t.text, blanks);
    if (fault != ArgFault::none) {
      found = t.text;
      fault_line = t.line;
      break;
    }
  }
  if (fault != ArgFault::none) {
    report(fault_line, arg_fault_text(fault, m, across, found, col.arg_number()));
    e.reader.restore(after_name);
    writer_.token(name, name_blanks, false);
    return;
  }
  cur_line_ = name_line;
  std::string subst;
  if (!expander_.substitute(m, col.args(), subst)) {
    e.reader.restore(after_name);
    writer_.token(name, name_blanks, false);
    return;
  }
  writer_.expansion(expander_.rescan(subst, &m), name_blanks);
  writer_.pending_newlines += newlines;
}

}  // namespace pp

void preprocess(const Options& options, Diagnostics& diag, PpJob& job) {
  pp::Preprocessor p(options, diag, job);
  p.run();
}

}  // namespace ycc
