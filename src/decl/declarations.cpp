#include "decl/declarations.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>

#include "common/text.h"
#include "decl/functions.h"
#include "decl/library_table.h"
#include "decl/type_keywords.h"

namespace ycc {

namespace {

// The nested spaces one variable may hold.
constexpr int walk_part_limit = 100000;

const char* tag_word(TagKind kind) {
  switch (kind) {
    case TagKind::Struct: return "struct";
    case TagKind::Enum: return "enum";
    case TagKind::Fun: return "fun";
  }
  return "";
}

char tag_kind_char(TagKind kind) {
  switch (kind) {
    case TagKind::Struct: return 's';
    case TagKind::Enum: return 'e';
    case TagKind::Fun: return 'n';
  }
  return 0;
}

bool in_list(DeclContext ctx) {
  return ctx == DeclContext::Parameter || ctx == DeclContext::Return ||
         ctx == DeclContext::FunParameter || ctx == DeclContext::FunReturn;
}

int clamp_int(long long v) {
  return static_cast<int>(std::max<long long>(INT_MIN, std::min<long long>(INT_MAX, v)));
}

}  // namespace

Declarations::Declarations(const Options& options, Diagnostics& diag, const TokenBuffer& tokens,
                           Workspace& ws, const Names& names)
    : options_(options), diag_(diag), tokens_(tokens), ws_(ws), emit_(symbols_, ws, names) {}

void Declarations::error(int line, int sub, int bit, const std::string& text) {
  diag_.error(line, text);
  if (sub) symbols_[sub].error_flags |= bit;
}

bool Declarations::is_typedef_name(std::string_view name) {
  return symbols_.find_typedef(name) != 0;
}

bool Declarations::type_is_struct(int type_sym, int* tag) const {
  int t = symbols_.resolve_type(type_sym);
  if (t && symbols_[t].name_is == 's') {
    if (tag) *tag = t;
    return true;
  }
  return false;
}

// ---- declarations -----------------------------------------------------------

void Declarations::begin_declaration(DeclContext ctx, const Token& first) {
  DeclState d;
  d.ctx = ctx;
  d.line = first.line;
  d.entry = symbols_.new_symbol();
  decls_.push_back(d);
}

void Declarations::add_storage_class(const Token& t) {
  DeclState& d = decl();
  int bit = t.tok == T_STATIC ? STORAGE_STATIC : t.tok == T_EXTERN ? STORAGE_EXTERN : STORAGE_TYPEDEF;
  if (d.storage) {
    error(t.line, d.entry, ERR_STORAGE,
          "extern, static, and typedef cannot be specified together in any combination");
    d.spec_errors |= ERR_STORAGE;
  }
  d.storage |= bit;
  if (d.current) symbols_[d.current].storage = d.storage;
}

void Declarations::add_type_keyword(const Token& t) {
  DeclState& d = decl();
  int bit = keyword_bit(t.tok);
  std::string word(t.text());
  if (d.type_sym) {
    error(t.line, d.entry, ERR_TYPE, strf("'%s' cannot be mixed with another type", word.c_str()));
    d.spec_errors |= ERR_TYPE;
  } else if (d.type_bits && !type_keyword_allowed(bit, d.type_bits)) {
    error(t.line, d.entry, ERR_TYPE,
          strf("type '%s' is incompatible with '%s'", word.c_str(), type_words(d.type_bits).c_str()));
    d.spec_errors |= ERR_TYPE;
  }
  d.type_bits |= bit;
}

void Declarations::add_var_qualifier(const Token&) {
  DeclState& d = decl();
  if (d.current)
    symbols_[d.current].is_var = 'y';
  else
    d.spec_var = 'y';
}

void Declarations::use_typedef_name(const Token& name) {
  DeclState& d = decl();
  std::string n(name.text());
  if (d.type_bits || d.type_sym) {
    error(name.line, d.entry, ERR_TYPE,
          strf("typedef type '%s' cannot be mixed with other type specifiers", n.c_str()));
    d.spec_errors |= ERR_TYPE;
  }
  d.type_sym = symbols_.find_typedef(n);
  if (d.type_sym) ++symbols_[d.type_sym].ref_count;
}

void Declarations::use_tag(TagKind kind, const Token& tag) {
  DeclState& d = decl();
  std::string n(tag.text());
  d.had_tag = true;
  d.tag_kind = tag_kind_char(kind);
  if (d.type_bits || d.type_sym) {
    error(tag.line, d.entry, ERR_TYPE, strf("%s cannot be mixed with other type specifiers", tag_word(kind)));
    d.spec_errors |= ERR_TYPE;
    return;
  }
  int found = symbols_.find_tag(tag_kind_char(kind), n, d.entry ? d.entry : symbols_.count());
  if (!found) {
    error(tag.line, d.entry, ERR_TYPE,
          strf("there is no previous declaration of '%s %s'", tag_word(kind), n.c_str()));
    d.spec_errors |= ERR_TYPE;
    return;
  }
  d.type_sym = found;
  ++symbols_[found].ref_count;
}

const char* Declarations::list_name() const {
  const DeclState& d = decls_.back();
  switch (d.ctx) {
    case DeclContext::FunParameter: return " function-pointer parameters";
    case DeclContext::FunReturn: return " function-pointer returns";
    case DeclContext::Parameter: return " function parameters";
    case DeclContext::Return: return " function returns";
    default: return "";
  }
}

void Declarations::declare_tag(TagKind kind, const Token* tag, const Token& at, bool has_body) {
  DeclState& d = decl();
  int line = tag ? tag->line : at.line;
  int earlier = tag ? symbols_.find_in_scope('g', SymbolTable::stored_name(tag->text())) : 0;
  d.tag_kind = tag_kind_char(kind);
  if (!has_body) {
    // "struct s;" names a tag ahead of its body; naming it again is harmless.
    d.had_tag = true;
    if (earlier && symbols_[earlier].name_is == tag_kind_char(kind)) return;
  }
  bool mixed = d.type_bits || d.type_sym;
  int sub = d.entry_used ? symbols_.new_symbol() : d.entry;
  d.entry_used = true;
  Symbol& s = symbols_[sub];
  s.name_class = 'g';
  s.name_is = tag_kind_char(kind);
  s.storage = d.storage;
  s.local = symbols_.depth() > 0;
  if (!tags_.empty()) s.owner = tags_.back();  // nested tags know their container
  if (tag)
    s.name = SymbolTable::stored_name(tag->text());
  else
    symbols_.make_anonymous(sub);
  if (mixed) error(line, sub, ERR_TYPE, strf("%s cannot be mixed with other type specifiers", tag_word(kind)));
  if (kind != TagKind::Fun && in_list(d.ctx))
    error(line, sub, ERR_PLACEMENT,
          strf("it is illegal to declare a new %s within a list of%s",
               kind == TagKind::Struct ? "structure" : "enum", list_name()));
  s.complete = has_body ? 'y' : 'n';
  bool forward_then_body = earlier && symbols_[earlier].complete == 'n' && has_body &&
                           symbols_[earlier].name_is == s.name_is;
  if (earlier && !forward_then_body)
    error(line, sub, ERR_REDEFINED, strf("redefinition of type tag '%s'", symbols_[sub].name.c_str()));
  if (tag) symbols_.add_to_index(sub);
  d.tag = sub;
  if (!mixed) d.type_sym = sub;
  if (!has_body) return;
  if (kind == TagKind::Fun) {
    FunctionState f;
    f.entry = sub;
    f.fun_type = true;
    functions_.push_back(f);
  } else {
    tags_.push_back(sub);
  }
}

void Declarations::enumerator(const Token& name) {
  int e = tags_.empty() ? 0 : tags_.back();
  int sub = symbols_.new_symbol();
  Symbol& s = symbols_[sub];
  s.name = SymbolTable::stored_name(name.text());
  s.name_class = 'o';
  s.name_is = 'c';
  s.owner = e;
  s.type_sym = e;
  if (symbols_.find_in_scope('o', s.name))
    error(name.line, sub, ERR_REDEFINED,
          strf("redefinition of name '%s'%s", symbols_[sub].name.c_str(),
               symbols_.depth() > 0 ? " in the block" : " in the globals"));
  symbols_.add_to_index(sub);
}

void Declarations::end_tag_body(TagKind kind, const Token&) {
  if (kind == TagKind::Fun) {
    if (functions_.empty()) return;
    symbols_[functions_.back().entry].body_end = symbols_.count();
    functions_.pop_back();
  } else if (!tags_.empty()) {
    Symbol& tag = symbols_[tags_.back()];
    int sub = tags_.back();
    tag.body_end = symbols_.count();
    if (tag.name_is == 's') {
      // The parts a walk of this structure meets: each nested space and the
      // parts of each nested structure type, once per place it stands.
      long long parts = 0;
      for (int m : tag.vf) {
        int t = symbols_.resolve_type(symbols_[m].type_sym);
        parts += 1 + (t && symbols_[t].name_is == 's' ? symbols_[t].walk_parts : 0);
        if (parts > walk_part_limit) parts = walk_part_limit + 1;
      }
      symbols_[sub].walk_parts = static_cast<int>(parts);
    }
    if (tag.name_is == 'e') {
      int constants = 0;
      for (int c = sub + 1; c < tag.body_end; ++c)
        if (symbols_[c].name_is == 'c' && symbols_[c].owner == sub) ++constants;
      symbols_[sub].enum_count = constants;
    }
    tags_.pop_back();
  }
}

int Declarations::new_declarator_entry(DeclState& d) {
  int sub;
  if (!d.entry_used) {
    sub = d.entry;
    d.entry_used = true;
  } else {
    sub = symbols_.new_symbol();
  }
  Symbol& s = symbols_[sub];
  s.storage = d.storage;
  s.type_bits = d.type_bits;
  s.type_sym = d.type_sym;
  s.error_flags |= d.spec_errors;
  s.is_var = d.spec_var;
  s.name_is = 'v';
  switch (d.ctx) {
    case DeclContext::Parameter: s.p_or_r = 'p'; break;
    case DeclContext::Return: s.p_or_r = 'r'; break;
    case DeclContext::FunParameter: s.p_or_r = 'a'; break;
    case DeclContext::FunReturn: s.p_or_r = 'b'; break;
    default: break;
  }
  return sub;
}

void Declarations::begin_declarator(const Token&) {
  DeclState& d = decl();
  d.current = new_declarator_entry(d);
  d.any_declarator = true;
}

void Declarations::declarator_name(const Token& name) {
  symbols_[decl().current].name = SymbolTable::stored_name(name.text());
}

void Declarations::add_dimension(bool has_size, const Token& lbracket) {
  DeclState& d = decl();
  int sub = d.current;
  Dimension dim;
  if (has_size) {
    Folded c = pop_constant();
    bool bad = false;
    long long v = checked_size(c, "dimension size", true, diag_, lbracket.line, bad);
    if (bad && sub) symbols_[sub].error_flags |= ERR_SPACE;
    if (v == 0) error(lbracket.line, sub, ERR_SPACE, "[0] is an invalid dimension size");
    dim.size = clamp_int(v);
    dim.written_empty = false;
  }
  if (!sub) return;
  symbols_[sub].dims.push_back(dim);
  // Every dimension count met needs its meta record type, prototypes' included.
  ws_.note_dimensions(symbols_[sub].dim_count());
}

void Declarations::add_resize_group(bool has_number, bool has_percent, const Token& lbracket) {
  DeclState& d = decl();
  int sub = d.current;
  int num = -1, pct = -1;
  bool bad = false;
  // The number lies below the percentage on the constant stack.
  if (has_percent) {
    pct = clamp_int(checked_size(pop_constant(), "resize percent", false, diag_, lbracket.line, bad));
    if (bad && sub) symbols_[sub].error_flags |= ERR_SPACE;
  }
  if (has_number) {
    Folded n = pop_constant();
    bad = false;
    num = clamp_int(checked_size(n, "resize number", false, diag_, lbracket.line, bad));
    if (bad && sub) symbols_[sub].error_flags |= ERR_SPACE;
  }
  if (!sub) return;
  Symbol& s = symbols_[sub];
  for (Dimension& dim : s.dims) {
    if (dim.resize_num == -1 && dim.resize_pct == -1) {
      dim.resize_num = num;
      dim.resize_pct = pct;
      break;
    }
  }
  ++s.resize_count;
}

void Declarations::check_redefinition(int sub, int line) {
  Symbol& s = symbols_[sub];
  if (s.anonymous() || s.name.empty()) return;
  if (s.p_or_r == 'p' || s.p_or_r == 'r') {
    if (s.name_class != 'o') return;
    for (int other = s.owner + 1; other < sub; ++other) {
      const Symbol& o = symbols_[other];
      if (o.owner == s.owner && (o.p_or_r == 'p' || o.p_or_r == 'r') && o.name == s.name) {
        error(line, sub, ERR_REDEFINED,
              strf("redefinition of name '%s' among the parameters and/or returns", s.name.c_str()));
        return;
      }
    }
    return;
  }
  if (s.name_class == 'i') return;
  if (s.name_class == 'c') {
    if (symbols_.find_in_scope('c', s.name, s.owner))
      error(line, sub, ERR_REDEFINED, strf("redefinition of name '%s' in the structure", s.name.c_str()));
    return;
  }
  if (symbols_.find_in_scope('o', s.name))
    error(line, sub, ERR_REDEFINED,
          strf("redefinition of name '%s'%s", s.name.c_str(),
               symbols_.depth() > 0 ? " in the block" : " in the globals"));
}

void Declarations::join_vf_list(int member, int structure) {
  Symbol& m = symbols_[member];
  Symbol& st = symbols_[structure];
  int member_struct = 0;
  bool nests = type_is_struct(m.type_sym, &member_struct) && !symbols_[member_struct].vf.empty();
  if (m.dim_count() > 0 || nests) st.vf.push_back(member);
  if (m.is_var == 'y') st.vf_flags[0] = 'y';
  if (m.dim_count() > 0 && m.is_var == 'n') st.vf_flags[1] = 'y';
  if (m.dim_count() == 1 && m.is_var == 'n') st.vf_flags[2] = 'y';
  if (member_struct) {
    for (int k = 0; k < 3; ++k)
      if (symbols_[member_struct].vf_flags[k] == 'y') st.vf_flags[k] = 'y';
    if (symbols_[member_struct].contains_fun_ptr == 'y') st.contains_fun_ptr = 'y';
  }
  int t = symbols_.resolve_type(m.type_sym);
  if (t && symbols_[t].name_is == 'n') st.contains_fun_ptr = 'y';
}

void Declarations::complete_declarator(const Token* name, bool initialized) {
  if (decls_.empty()) return;
  check_declarator(name, initialized);
  // A parameter or return declaration has exactly one declarator and no ";".
  if (in_list(decls_.back().ctx)) decls_.pop_back();
}

void Declarations::check_declarator(const Token* name, bool initialized) {
  DeclState& d = decl();
  int sub = d.current;
  if (!sub) return;
  if (!name) symbols_.make_anonymous(sub);
  int line = name ? name->line : d.line;
  Symbol* s = &symbols_[sub];
  s->line = line;

  // Name class and owner follow from where the declaration stands.
  switch (d.ctx) {
    case DeclContext::External:
    case DeclContext::Block:
      s->name_class = 'o';
      break;
    case DeclContext::Member:
      s->name_class = 'c';
      s->owner = tags_.empty() ? 0 : tags_.back();
      break;
    case DeclContext::Parameter:
    case DeclContext::Return:
    case DeclContext::FunParameter:
    case DeclContext::FunReturn: {
      FunctionState* f = functions_.empty() ? nullptr : &functions_.back();
      s->name_class = f && f->definition && !f->fun_type ? 'o' : 'i';
      s->owner = f ? f->entry : 0;
      if (f) {
        Symbol& fs = symbols_[f->entry];
        if (d.ctx == DeclContext::Parameter || d.ctx == DeclContext::FunParameter)
          ++fs.param_count;
        else
          ++fs.return_count;
      }
      s = &symbols_[sub];
      break;
    }
  }
  std::string shown = s->shown_name();
  const char* n = shown.c_str();

  if (s->storage & STORAGE_TYPEDEF) {
    s->name_is = 't';
    int base = s->type_sym;
    if (base && symbols_[base].name_is == 't') {
      s->type_bits = symbols_[base].type_bits;
      s->type_sym = symbols_[base].type_sym;
    }
    if (s->is_var == 'y' || s->dim_count() > 0 || s->resize_count > 0 || initialized)
      error(line, sub, ERR_SPACE,
            strf("the typedef name '%s' cannot have var, dimensions, resize, or an initializer, "
                 "specified",
                 n));
    if (symbols_[sub].type_bits == 0 && symbols_[sub].type_sym == 0)
      error(line, sub, ERR_TYPE, strf("a type must be specified for the typedef name '%s'", n));
    if (symbols_.find_in_scope('o', symbols_[sub].name))
      error(line, sub, ERR_REDEFINED,
            strf("redefinition of name '%s'%s", n,
                 symbols_.depth() > 0 ? " in the block" : " in the globals"));
    symbols_.add_to_index(sub);
    return;
  }

  // 1. Globals of extern includes become extern.
  if (d.ctx == DeclContext::External && tokens_.in_extern_range(line)) {
    if (s->storage & STORAGE_STATIC)
      error(line, sub, ERR_SPACE,
            strf("global variable '%s' is declared 'static', but the declaration appears within "
                 "an #include file that is either itself declared 'extern' or is nested within "
                 "some other #include file that is declared 'extern'",
                 n));
    else
      symbols_[sub].storage |= STORAGE_EXTERN;
  }
  s = &symbols_[sub];

  // 2. Default resize information.
  int dims = s->dim_count();
  if (s->is_var == 'n') {
    for (Dimension& dim : s->dims) dim.resize_num = dim.resize_pct = 0;
  } else if (dims > 0) {
    int num = dims == 1 ? 50 : static_cast<int>(std::pow(50.0, 1.0 / dims));
    for (Dimension& dim : s->dims) {
      if (dim.resize_num == -1) dim.resize_num = num;
      if (dim.resize_pct == -1) dim.resize_pct = 15;
    }
  }

  // 3. Redefinition; 4. the name is indexed and joins its structure's lists.
  check_redefinition(sub, line);
  s = &symbols_[sub];
  if (!s->anonymous() && !s->name.empty()) symbols_.add_to_index(sub);
  if (s->name_class == 'c' && s->owner) join_vf_list(sub, s->owner);
  s = &symbols_[sub];

  // 5. Recursive types.
  int member_struct = 0;
  if (s->name_class == 'c' && type_is_struct(s->type_sym, &member_struct)) {
    for (int c = s->owner; c; c = symbols_[c].owner) {
      if (c == member_struct) {
        error(line, sub, ERR_TYPE,
              strf("variable '%s' has a recursive type: a component cannot have any of its "
                   "containers as its type",
                   n));
        symbols_[sub].type_sym = 0;
        break;
      }
    }
  }
  s = &symbols_[sub];

  // 6. Initialization.
  bool is_return = s->p_or_r == 'r' || s->p_or_r == 'b';
  if (initialized) {
    if (s->storage & STORAGE_EXTERN)
      error(line, sub, ERR_SPACE, strf("variable '%s' is declared external and cannot be initialized", n));
    if (is_return) {
      if (s->dim_count() > 0)
        error(line, sub, ERR_SPACE,
              strf("return variable '%s' cannot be initialized, because it is a return space", n));
      else if (type_is_struct(s->type_sym))
        error(line, sub, ERR_SPACE,
              strf("return variable '%s' cannot be initialized, because it is a return structure", n));
      else if (s->name_class == 'i')
        error(line, sub, ERR_SPACE,
              strf("return variable '%s' cannot be initialized in the function declaration: "
                   "return-variable initializations can only appear in the function definition",
                   n));
    }
  }
  s = &symbols_[sub];

  // 7. A return space must be a varspace.
  if (is_return && s->dim_count() > 0 && s->is_var == 'n')
    error(line, sub, ERR_SPACE,
          s->p_or_r == 'b'
              ? strf("fun: return variable '%s' cannot be a fixed-space: a return space must be a "
                     "varspace",
                     n)
              : strf("return variable '%s' cannot be a fixed-space: a return space must be a "
                     "varspace",
                     n));
  s = &symbols_[sub];

  // 8. Resize information.
  if (s->resize_count != 0 && s->resize_count != s->dim_count())
    error(line, sub, ERR_SPACE,
          strf("for variable '%s', its dimensions (%d) do not equal the resize dimensions (%d)", n,
               s->dim_count(), s->resize_count));
  s = &symbols_[sub];
  if (s->resize_count != 0 && s->is_var == 'n')
    error(line, sub, ERR_SPACE,
          strf("for variable '%s', resize information can only be specified if the variable has "
               "the var qualifier",
               n));
  s = &symbols_[sub];

  // 9. The var qualifier.
  if (s->is_var == 'y') {
    bool sized = std::any_of(s->dims.begin(), s->dims.end(), [](const Dimension& dim) { return dim.size != 0; });
    if (sized)
      error(line, sub, ERR_SPACE,
            strf("for each dimension of variable '%s', the var qualifier requires an empty "
                 "dimension size: '[]'",
                 n));
    if (symbols_[sub].dim_count() == 0)
      error(line, sub, ERR_SPACE, strf("for variable '%s', the var qualifier requires one or more dimensions", n));
    if (initialized)
      error(line, sub, ERR_SPACE,
            strf("for variable '%s', the var qualifier cannot be combined with initialization", n));
  }
  s = &symbols_[sub];

  // 10. Empty sizes of fixed-spaces.
  if (s->is_var == 'n' && s->dim_count() > 0) {
    int empty = static_cast<int>(
        std::count_if(s->dims.begin(), s->dims.end(), [](const Dimension& dim) { return dim.written_empty; }));
    bool is_extern = s->storage & STORAGE_EXTERN;
    bool allowed = s->p_or_r == 'p' || s->p_or_r == 'a' || s->p_or_r == 'b' || initialized || is_extern;
    if (empty > 0 && !allowed)
      error(line, sub, ERR_SPACE,
            strf("for each dimension of variable '%s', a dimension size greater than zero is required", n));
    if (is_extern && empty > 0 && empty < symbols_[sub].dim_count())
      error(line, sub, ERR_SPACE,
            strf("for the dimensions of external variable '%s', all the dimension sizes must be "
                 "either empty or nonempty",
                 n));
  }
  s = &symbols_[sub];

  // 11. Spaces may not be declared in nested blocks.
  if (symbols_.depth() >= 2 && s->name_class != 'c' && s->p_or_r == 'n') {
    int st = 0;
    bool is_space = s->dim_count() > 0;
    bool contains = type_is_struct(s->type_sym, &st) &&
                    (symbols_[st].vf_flags[0] == 'y' || symbols_[st].vf_flags[1] == 'y');
    if (is_space || contains)
      error(line, sub, ERR_PLACEMENT,
            strf("illegal placement for the declaration of variable '%s', because it %s a space: "
                 "the declaration %s a space cannot appear in a nested block (a nested block is a "
                 "compound statement that is enclosed by another compound statement)",
                 n, is_space ? "declares" : "contains", is_space ? "of" : "of a variable containing"));
  }
  s = &symbols_[sub];

  // The initializer is walked against the declaration it completes.
  if (initialized && symbols_[sub].error_flags == 0)
    symbols_[sub].init_text = check_initializer(symbols_, diag_, emit_, sub, init_items_);
  s = &symbols_[sub];

  // Code that initializes, copies and frees nested spaces is written part by
  // part: a type that nests too many (each level holding the last twice is
  // enough) would make it grow without bound.
  {
    int t = symbols_.resolve_type(symbols_[sub].type_sym);
    if (symbols_[sub].name_class != 'c' && t && symbols_[t].name_is == 's' && symbols_[t].walk_parts > walk_part_limit)
      error(line, sub, ERR_SPACE,
            strf("'%s' nests more than %d spaces: the code that would set them up, copy them and free them "
                 "one by one is too large",
                 n, walk_part_limit));
  }
  s = &symbols_[sub];

  // 12. External varspaces without resize information.
  if (s->is_var == 'y' && (s->storage & STORAGE_EXTERN) && s->name[0] != '_' && s->resize_count == 0 &&
      s->dim_count() > 0)
    diag_.warning(line,
                  strf("the resize information for each dimension of external variable '%s' is not "
                       "specified, and is assumed to be [%d,%d%%]",
                       n, s->dims[0].resize_num, s->dims[0].resize_pct),
                  3);
}

void Declarations::complete_tag_only_declaration(const Token& semicolon) {
  DeclState& d = decl();
  if (!d.had_tag && !d.tag) {
    // Specifier errors have said enough.
    if (!d.spec_errors) error(semicolon.line, d.entry, ERR_SPACE, "the declaration is missing a name");
    return;
  }
  // Only a tag this declaration made itself takes the error bit.
  int sub = d.tag && symbols_[d.tag].complete == 'y' ? d.tag : 0;
  if (sub && symbols_[sub].error_flags) return;
  const char* word = d.tag_kind == 's' ? "struct" : d.tag_kind == 'e' ? "enum" : "fun";
  if (d.storage & STORAGE_EXTERN)
    error(semicolon.line, sub, ERR_TYPE, strf("the '%s' declaration cannot specify 'extern'", word));
  if (d.storage & STORAGE_STATIC)
    error(semicolon.line, sub, ERR_TYPE, strf("the '%s' declaration cannot specify 'static'", word));
  if (sub && symbols_[sub].anonymous())
    error(semicolon.line, sub, ERR_TYPE, strf("the '%s' declaration requires a type name", word));
}

void Declarations::end_declaration(DeclContext ctx, const Token&) {
  if (decls_.empty()) return;
  DeclState d = decls_.back();
  decls_.pop_back();
  // An entry that took specifiers but became nothing is not kept.
  if (!d.entry_used && d.entry == symbols_.count() - 1 && !d.spec_errors &&
      symbols_[d.entry].error_flags == 0)
    symbols_.drop_last();
  int last = symbols_.count();
  if (ctx == DeclContext::External) {
    bool clean = true;
    for (int sub = std::min(d.entry, last); sub < last; ++sub)
      if (symbols_[sub].error_flags) clean = false;
    if (clean && (d.entry_used || d.tag)) declared_anything_ = true;
    if (d.entry < last) emit_.external_declaration(d.entry);
  } else if (ctx == DeclContext::Block) {
    for (int sub = std::min(d.entry, last); sub < last; ++sub)
      if (symbols_[sub].name_class != 'c' && symbols_[sub].name_class != 'i')
        emit_.local_declaration(sub, symbols_.depth() >= 2);
  }
}

void Declarations::report_unreferenced(int first) {
  for (int sub = first; sub < symbols_.count(); ++sub) {
    const Symbol& s = symbols_[sub];
    if (s.name_is != 'v' || s.name_class != 'o' || s.p_or_r != 'n' || s.ref_count != 0) continue;
    if ((s.storage & STORAGE_EXTERN) || s.anonymous()) continue;
    diag_.warning(s.line, strf("'%s' : unreferenced local variable", s.name.c_str()), 2);
  }
}

// ---- functions ----------------------------------------------------------------

void Declarations::enter_function_name(const Token& name, bool is_static, bool is_definition) {
  int sub = symbols_.new_symbol();
  Symbol& s = symbols_[sub];
  s.name = SymbolTable::stored_name(name.text());
  s.name_class = 'o';
  s.name_is = is_definition ? 'f' : 'd';
  if (is_static) s.storage = STORAGE_STATIC;
  symbols_.add_to_index(sub);
  if (is_definition && s.name != "main" && find_library_function(s.name) >= 0)
    error(name.line, sub, ERR_REDEFINED,
          strf("the function name '%s' is reserved by the YARL C library: a function definition "
               "cannot use this name as its function name",
               symbols_[sub].name.c_str()));
  FunctionState f;
  f.entry = sub;
  f.definition = is_definition;
  functions_.push_back(f);
  // The parameters and returns of a definition live in its body's scope.
  if (is_definition) symbols_.enter_block();
}

void Declarations::begin_parameter_list(ListOwner, const Token&) {}

void Declarations::parameter_any(const Token& any) {
  if (functions_.empty()) return;
  FunctionState& f = functions_.back();
  int sub = symbols_.new_symbol();
  Symbol& s = symbols_[sub];
  symbols_.make_anonymous(sub);
  s.name_class = f.definition && !f.fun_type ? 'o' : 'i';
  s.name_is = 'v';
  s.owner = f.entry;
  s.p_or_r = f.fun_type ? 'a' : 'p';
  s.role[0] = 'a';  // type any
  ++symbols_[f.entry].param_count;
  if (f.definition && !f.fun_type)
    error(any.line, f.entry, ERR_PLACEMENT,
          "type 'any' cannot appear in a function definition: the type is reserved for use by "
          "YARL C library functions, such as qsort");
}

void Declarations::parameter_ellipsis(const Token& ellipsis) {
  if (functions_.empty()) return;
  FunctionState& f = functions_.back();
  symbols_[f.entry].ellipsis = 'y';
  if (f.definition && !f.fun_type)
    error(ellipsis.line, f.entry, ERR_PLACEMENT,
          "ellipsis '...' cannot appear in a function definition: ellipsis is reserved for use by "
          "YARL C library functions, such as printf and scanf");
}

void Declarations::end_parameter_list(ListOwner, const Token&) {}

void Declarations::begin_return_list(ListOwner, const Token&) {
  if (!functions_.empty()) functions_.back().in_returns = true;
}

void Declarations::end_return_list(ListOwner, const Token&) {}

void Declarations::finish_function(const Token& name, bool is_definition) {
  if (functions_.empty()) return;
  int sub = functions_.back().entry;
  if (!is_definition) functions_.pop_back();
  Symbol& s = symbols_[sub];
  int line = name.line;
  std::string n = s.name;
  // Another entry of the same name anywhere in the table.
  int other = symbols_.find_other('o', n, sub);
  if (other) {
    char k = symbols_[other].name_is;
    if (k != 'f' && k != 'd') {
      error(line, sub, ERR_REDEFINED, strf("redefinition of name '%s' in the globals", n.c_str()));
    } else if (!is_definition) {
      error(line, sub, ERR_PLACEMENT,
            k == 'f' ? strf("this prototype of function '%s' follows the definition of this function", n.c_str())
                     : strf("redefinition of function prototype '%s'", n.c_str()));
    } else if (k == 'f') {
      error(line, sub, ERR_FUNCTION, strf("redefinition of function '%s'", n.c_str()));
    } else {
      for (const std::string& m : compare_with_prototype(symbols_, sub, other))
        error(line, sub, ERR_FUNCTION, m);
    }
  } else if (is_definition) {
    error(line, sub, ERR_FUNCTION, strf("function '%s' is missing its prototype", n.c_str()));
  }
  if (symbols_[sub].error_flags == 0) {
    declared_anything_ = true;
    emit_.function_heading(sub, is_definition);
  }
  if (is_definition) function_ = sub;
}

void Declarations::open_function_body(const Token& lbrace, const FunctionLabels&) {
  if (!function_ || symbols_[function_].error_flags != 0) return;
  // --report-checks: the checks counted after this marker are the function's.
  if (options_.report_checks) ws_.put_text('n', ws_.check_marker('f', lbrace.line, symbols_[function_].name));
  ws_.open_function_body();
}

void Declarations::close_function_body(const Token&) {
  int first = symbols_.depth() > 0 ? symbols_.block_first(symbols_.depth()) : symbols_.count();
  report_unreferenced(first);
  if (function_ && symbols_[function_].error_flags == 0) emit_.function_closing(function_);
  symbols_.leave_block();
  if (!functions_.empty()) functions_.pop_back();
  function_ = 0;
}

void Declarations::open_block(const Token&) {
  symbols_.enter_block();
  ws_.push_block(symbols_.count());
}

void Declarations::close_block(const Token&) {
  int first = symbols_.block_first(symbols_.depth());
  emit_.free_block_varspaces(first);
  report_unreferenced(first);
  if (ws_.pop_block()) ws_.put_text('n', "\n}");
  symbols_.leave_block();
}

// ---- type names ------------------------------------------------------------------

void Declarations::begin_type_name(const Token& first) {
  DeclState d;
  d.ctx = DeclContext::Block;
  d.line = first.line;
  d.entry_used = true;  // a type name makes no entry
  decls_.push_back(d);
}

void Declarations::end_type_name(const Token&) {
  if (decls_.empty()) return;
  const DeclState& d = decls_.back();
  TypeName t{d.type_bits, d.type_sym, d.spec_errors != 0};
  // Typedef names stand for their type.
  for (int guard = 0; t.type_sym && symbols_[t.type_sym].name_is == 't' && guard < 1000; ++guard) {
    t.type_bits |= symbols_[t.type_sym].type_bits;
    t.type_sym = symbols_[t.type_sym].type_sym;
  }
  type_names_.push_back(t);
  decls_.pop_back();
}

TypeName Declarations::pop_type_name() {
  if (type_names_.empty()) return TypeName{0, 0, true};
  TypeName t = type_names_.back();
  type_names_.pop_back();
  return t;
}

// ---- initializers ----------------------------------------------------------------

void Declarations::begin_initializer(const Token&) {
  init_items_.clear();
  const_ops_ = 0;
  literal_sign_ = 0;
  last_literal_ = nullptr;
}

void Declarations::initializer_open_brace(const Token& t) {
  InitItem item{'{', "{", "{"};
  item.line = t.line;
  init_items_.push_back(item);
}

void Declarations::initializer_close_brace(const Token& t) {
  InitItem item{'}', "}", "}"};
  item.line = t.line;
  init_items_.push_back(item);
}

void Declarations::initializer_identifier(const Token& name, const Token* sign) {
  InitItem item{'i', std::string(name.text()), std::string(name.text())};
  item.line = name.line;
  if (sign) {
    item.sign = sign->text()[0];
    item.text = std::string(sign->text()) + item.text;
  }
  init_items_.push_back(item);
}

void Declarations::initializer_constant(const Token& first) {
  Folded f = pop_constant();
  InitItem item{'d', "", ""};
  item.line = first.line;
  bool plain = last_literal_ && (const_ops_ == 0 || (const_ops_ == 1 && literal_sign_));
  if (plain) {
    const Token& lit = *last_literal_;
    std::string text(lit.text());
    item.sign = literal_sign_;
    std::string sign = literal_sign_ ? std::string(1, literal_sign_) : "";
    item.text = sign + text;
    switch (lit.tok) {
      case T_STRING:
        item.kind = 's';
        item.c_text = last_string_c_text_;
        item.length = last_string_length_;
        break;
      case T_CHARACTER: {
        item.kind = 'c';
        item.value = last_char_value_;
        item.c_text = sign + last_char_c_text_;
        break;
      }
      case T_FLOATONE:
      case T_FLOATTWO: {
        item.kind = 'f';
        errno = 0;
        item.value = std::strtod(text.c_str(), nullptr);
        item.overflow = errno == ERANGE && std::isinf(item.value);
        item.c_text = sign + text;
        break;
      }
      default: {
        item.kind = lit.tok == T_HEXADECIMAL ? 'x' : 'd';
        errno = 0;
        unsigned long long u = std::strtoull(text.c_str(), nullptr, item.kind == 'x' ? 16 : 10);
        item.overflow = errno == ERANGE || u > 4294967295ULL;
        item.value = static_cast<double>(u);
        item.c_text = sign + text;
        break;
      }
    }
    if (literal_sign_ == '-') item.value = -item.value;
  } else {
    // A computed constant: its folded value stands for the item.
    item.kind = f.kind;
    item.text = format_constant(f, diag_, first.line);
    item.c_text = item.text;
    item.value = f.converted ? f.value : std::strtod(item.text.c_str(), nullptr);
  }
  init_items_.push_back(item);
  const_ops_ = 0;
  literal_sign_ = 0;
  last_literal_ = nullptr;
}

// ---- constant expressions -------------------------------------------------------

Folded Declarations::pop_constant() {
  if (constants_.empty()) return Folded::literal('d', "1");
  Folded f = constants_.back();
  constants_.pop_back();
  return f;
}

void Declarations::const_literal(const Token& t) {
  last_literal_ = &t;
  switch (t.tok) {
    case T_DECIMALINT: constants_.push_back(Folded::literal('d', t.text())); break;
    case T_HEXADECIMAL: constants_.push_back(Folded::literal('x', t.text())); break;
    case T_FLOATONE:
    case T_FLOATTWO: constants_.push_back(Folded::literal('f', t.text())); break;
    case T_CHARACTER: {
      CharacterConstant c = check_character_constant(t.text(), diag_, t.line);
      last_char_value_ = c.value;
      last_char_c_text_ = c.c_text;
      Folded f = Folded::literal('d', std::to_string(c.value < 0 ? -c.value : c.value));
      f.negative = c.value < 0;
      constants_.push_back(f);
      break;
    }
    default: {
      // A string has no arithmetic value; it folds as 1 like any faulty operand.
      StringConstant sc = check_string_constant(t.text(), diag_, t.line);
      last_string_c_text_ = sc.c_text;
      last_string_length_ = sc.length;
      constants_.push_back(Folded::literal('d', "1"));
      break;
    }
  }
}

void Declarations::const_unary(const Token& op) {
  if (const_ops_ == 0 && last_literal_) literal_sign_ = op.text()[0];
  ++const_ops_;
  if (op.tok == T_MINUS) constants_.push_back(fold_negate(pop_constant()));
}

void Declarations::const_binary(const Token& op) {
  const_ops_ += 2;
  Folded b = pop_constant();
  Folded a = pop_constant();
  constants_.push_back(fold_binary(op.text().empty() ? '+' : op.text()[0], a, b, diag_, op.line));
}

void Declarations::const_error_operand(const Token&) { constants_.push_back(Folded::literal('d', "1")); }

}  // namespace ycc
