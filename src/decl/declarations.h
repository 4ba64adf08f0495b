// The declaration actions: every specifier, tag, declarator, dimension and
// resize group the parser meets is recorded in the symbol table and checked
// by the rules that make spaces safe, and complete declarations are emitted.
// The translation of statements and expressions reaches the symbol table,
// the emitter, the constant stack and the type names through this class.
#pragma once

#include <string>
#include <vector>

#include "common/names.h"
#include "common/options.h"
#include "decl/constants.h"
#include "decl/emit.h"
#include "decl/initializers.h"
#include "decl/symbol_table.h"
#include "diag/diagnostics.h"
#include "front/actions.h"
#include "front/lexer.h"
#include "output/workspace.h"

namespace ycc {

// The type of a cast or sizeof: basic type bits and the structure,
// enumeration or fun type, typedef names followed; `bad` after a specifier error.
struct TypeName {
  int type_bits = 0;
  int type_sym = 0;
  bool bad = false;
};

class Declarations {
 public:
  Declarations(const Options& options, Diagnostics& diag, const TokenBuffer& tokens, Workspace& ws,
               const Names& names);

  SymbolTable& symbols() { return symbols_; }
  Emitter& emitter() { return emit_; }
  const TokenBuffer& tokens() const { return tokens_; }
  // The function definition whose body is being compiled (0 outside one).
  int current_function() const { return function_; }
  // Whether any declaration or function was complete without errors.
  bool declared_anything() const { return declared_anything_; }

  bool is_typedef_name(std::string_view name);

  void begin_declaration(DeclContext ctx, const Token& first);
  void add_storage_class(const Token& t);
  void add_type_keyword(const Token& t);
  void add_var_qualifier(const Token& t);
  void use_typedef_name(const Token& name);
  void use_tag(TagKind kind, const Token& tag);
  void declare_tag(TagKind kind, const Token* tag, const Token& at, bool has_body);
  void enumerator(const Token& name);
  void end_tag_body(TagKind kind, const Token& last);
  void begin_declarator(const Token& first);
  void declarator_name(const Token& name);
  void add_dimension(bool has_size, const Token& lbracket);
  void add_resize_group(bool has_number, bool has_percent, const Token& lbracket);
  void complete_declarator(const Token* name, bool initialized);
  void complete_tag_only_declaration(const Token& semicolon);
  void end_declaration(DeclContext ctx, const Token& semicolon);

  void enter_function_name(const Token& name, bool is_static, bool is_definition);
  void begin_parameter_list(ListOwner owner, const Token& lparen);
  void parameter_any(const Token& any);
  void parameter_ellipsis(const Token& ellipsis);
  void end_parameter_list(ListOwner owner, const Token& rparen);
  void begin_return_list(ListOwner owner, const Token& first);
  void end_return_list(ListOwner owner, const Token& last);
  void finish_function(const Token& name, bool is_definition);
  void open_function_body(const Token& lbrace, const FunctionLabels& labels);
  void close_function_body(const Token& rbrace);
  void open_block(const Token& lbrace);
  void close_block(const Token& rbrace);

  void begin_initializer(const Token& equal);
  void initializer_open_brace(const Token& t);
  void initializer_close_brace(const Token& t);
  void initializer_identifier(const Token& name, const Token* sign);
  void initializer_constant(const Token& first);

  // A type name of a cast or sizeof: its specifiers are checked like a
  // declaration's. Type names nest ((unsigned)((int)a)): each waits on a stack
  // until its cast or sizeof takes it.
  void begin_type_name(const Token& first);
  void end_type_name(const Token& last);
  TypeName pop_type_name();
  // The folded constant on top of the constant stack (1 when none stands there).
  Folded pop_constant();

  void const_literal(const Token& t);
  void const_unary(const Token& op);
  void const_binary(const Token& op);
  void const_error_operand(const Token& at);

 private:
  // One declaration being read; nested ones (members, parameters, fun types)
  // stack above their container.
  struct DeclState {
    DeclContext ctx;
    int entry = 0;            // takes the specifiers; the first declarator uses it
    bool entry_used = false;  // it became a tag or a declarator
    int storage = 0, type_bits = 0, type_sym = 0, spec_errors = 0;
    char spec_var = 'n';
    int current = 0;          // the declarator being built
    int tag = 0;              // a tag declared with a body here
    bool any_declarator = false;
    bool had_tag = false;
    char tag_kind = 's';
    int line = 0;
  };
  // A function, prototype or fun type whose lists are being read.
  struct FunctionState {
    int entry = 0;
    bool definition = false;
    bool fun_type = false;
    bool in_returns = false;
  };

  void error(int line, int sub, int bit, const std::string& text);
  // The checks of a complete declarator, in their fixed order.
  void check_declarator(const Token* name, bool initialized);
  DeclState& decl() {
    if (decls_.empty()) decls_.push_back(DeclState{DeclContext::Block});  // specifiers out of place
    return decls_.back();
  }
  int new_declarator_entry(DeclState& d);
  void check_redefinition(int sub, int line);
  void join_vf_list(int member, int structure);
  bool type_is_struct(int type_sym, int* tag = nullptr) const;
  const char* list_name() const;
  // Warns of the block's ordinary locals that were never referenced.
  void report_unreferenced(int first);

  const Options& options_;
  Diagnostics& diag_;
  const TokenBuffer& tokens_;
  Workspace& ws_;
  SymbolTable symbols_;
  Emitter emit_;
  std::vector<DeclState> decls_;
  std::vector<FunctionState> functions_;
  std::vector<Folded> constants_;
  std::vector<TypeName> type_names_;
  // The items of the initializer being read, and what the constant
  // expression of the current item was made of.
  std::vector<InitItem> init_items_;
  const Token* last_literal_ = nullptr;
  int const_ops_ = 0;
  char literal_sign_ = 0;
  std::string last_string_c_text_;
  std::string last_char_c_text_;
  int last_char_value_ = 0;
  int last_string_length_ = 0;
  std::vector<int> tags_;          // structures and enumerations whose bodies are open
  bool declared_anything_ = false;
  int function_ = 0;               // the function definition being compiled
};

}  // namespace ycc
