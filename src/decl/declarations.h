// The declaration actions: every specifier, tag, declarator, dimension and
// resize group the parser meets is recorded in the symbol table and checked
// by the rules that make spaces safe. The translation of statements and
// expressions builds on this class.
#pragma once

#include <string>
#include <vector>

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

class Declarations : public Actions {
 public:
  Declarations(const Options& options, Diagnostics& diag, const TokenBuffer& tokens, Workspace& ws);

  SymbolTable& symbols() { return symbols_; }
  // The largest dimension count met in the file.
  int max_dimensions() const { return max_dims_; }
  // Whether any declaration or function was complete without errors.
  bool declared_anything() const { return declared_anything_; }

  bool is_typedef_name(std::string_view name) override;

  void begin_declaration(DeclContext ctx, const Token& first) override;
  void add_storage_class(const Token& t) override;
  void add_type_keyword(const Token& t) override;
  void add_var_qualifier(const Token& t) override;
  void use_typedef_name(const Token& name) override;
  void use_tag(TagKind kind, const Token& tag) override;
  void declare_tag(TagKind kind, const Token* tag, const Token& at, bool has_body) override;
  void enumerator(const Token& name) override;
  void end_tag_body(TagKind kind, const Token& last) override;
  void begin_declarator(const Token& first) override;
  void declarator_name(const Token& name) override;
  void add_dimension(bool has_size, const Token& lbracket) override;
  void add_resize_group(bool has_number, bool has_percent, const Token& lbracket) override;
  void complete_declarator(const Token* name, bool initialized) override;
  void complete_tag_only_declaration(const Token& semicolon) override;
  void end_declaration(DeclContext ctx, const Token& semicolon) override;

  void enter_function_name(const Token& name, bool is_static, bool is_definition) override;
  void begin_parameter_list(ListOwner owner, const Token& lparen) override;
  void parameter_any(const Token& any) override;
  void parameter_ellipsis(const Token& ellipsis) override;
  void end_parameter_list(ListOwner owner, const Token& rparen) override;
  void begin_return_list(ListOwner owner, const Token& first) override;
  void end_return_list(ListOwner owner, const Token& last) override;
  void finish_function(const Token& name, bool is_definition) override;
  void open_function_body(const Token& lbrace, const FunctionLabels& labels) override;
  void close_function_body(const Token& rbrace) override;
  void open_block(const Token& lbrace) override;
  void close_block(const Token& rbrace) override;

  void begin_initializer(const Token& equal) override;
  void initializer_open_brace(const Token& t) override;
  void initializer_close_brace(const Token& t) override;
  void initializer_identifier(const Token& name, const Token* sign) override;
  void initializer_constant(const Token& first) override;

  // A type name of a cast or sizeof: its specifiers are checked like a
  // declaration's, and the type is kept in `type_name_` for the translation.
  void begin_type_name(const Token& first) override;
  void end_type_name(const Token& last) override;

  void const_literal(const Token& t) override;
  void const_unary(const Token& op) override;
  void const_binary(const Token& op) override;
  void const_error_operand(const Token& at) override;

 protected:
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
  Folded pop_constant();
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
  struct TypeName {
    int type_bits = 0;
    int type_sym = 0;
    bool bad = false;
  } type_name_;
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
  int max_dims_ = 0;
  bool declared_anything_ = false;
  int function_ = 0;               // the function definition being compiled
};

}  // namespace ycc
