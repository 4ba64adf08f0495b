// The tokens of one file, read by index. The lexer can fill the list as the
// parser reads, and the parser can give back what it has passed: a file's
// tokens then never all stand in memory at once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "front/token.h"

namespace ycc {

// Makes more tokens on request.
class TokenSource {
 public:
  virtual ~TokenSource() = default;
  // Appends tokens until the list holds more than `index` or ends in Eof.
  virtual void produce(std::size_t index) = 0;
};

// The tokens themselves, in blocks whose places never change.
struct TokenStore {
  static constexpr std::size_t block_bits = 12;
  static constexpr std::size_t block_size = std::size_t{1} << block_bits;

  std::vector<std::unique_ptr<Token[]>> blocks;  // null once given back
  std::vector<std::unique_ptr<Token[]>> spare;   // given back, for reuse
  std::size_t count = 0;                         // tokens appended
  bool ended = false;                            // Eof is the last of them

  // Throws std::bad_alloc when no block can be had.
  void append(const Token& t) {
    if ((count & (block_size - 1)) == 0) [[unlikely]]
      new_block();
    blocks.back()[count & (block_size - 1)] = t;
    ++count;
  }

 private:
  void new_block();
};

class TokenList {
 public:
  TokenList() : store_(std::make_unique<TokenStore>()) {}

  // Token i, which must exist and not have been given back.
  const Token& operator[](std::size_t i) const {
    if (i >= count_) [[unlikely]]
      reach(i);
    return at(i);
  }
  // Token i, given token i - 1 at `before`: the next one in its block
  // when token i is made and stands there.
  const Token& next(std::size_t i, const Token* before) const {
    if (i < count_ && (i & (TokenStore::block_size - 1)) != 0) [[likely]]
      return before[1];
    return (*this)[i];
  }
  // Whether token i exists.
  bool contains(std::size_t i) const { return i < count_ || reach(i); }
  // Token i's number, or Eof past the end.
  int tok_at(std::size_t i) const {
    if (i < count_) [[likely]]
      return static_cast<int>(at(i).tok);
    return reach(i) ? static_cast<int>(at(i).tok) : T_Eof;
  }
  // Tokens i, i+1, ... that stand together in one block, for scans that
  // read many tokens in a row; empty (null) past the end of the list.
  std::pair<const Token*, std::size_t> run_at(std::size_t i) const {
    if (i >= count_ && !reach(i)) return {nullptr, 0};
    std::size_t in_block = i & (TokenStore::block_size - 1);
    std::size_t n = std::min(TokenStore::block_size - in_block, count_ - i);
    return {&at(i), n};
  }
  // The index of a token of this list (one of the last few blocks).
  std::size_t index_of(const Token& t) const;

  // Tokens below `index`, but for a few just before it, are no longer read:
  // their blocks are reused. Only a list that is filled as it is read gives
  // blocks back.
  void give_back_before(std::size_t index) const;

  // These make the whole list.
  std::size_t size() const {
    finish();
    return count_;
  }
  bool empty() const { return size() == 0; }
  const Token& back() const { return (*this)[size() - 1]; }

  class const_iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Token;
    using difference_type = std::ptrdiff_t;
    using pointer = const Token*;
    using reference = const Token&;
    const_iterator(const TokenList* list, std::size_t i) : list_(list), i_(i) {}
    reference operator*() const { return (*list_)[i_]; }
    pointer operator->() const { return &(*list_)[i_]; }
    const_iterator& operator++() {
      ++i_;
      return *this;
    }
    bool operator==(const const_iterator& o) const { return i_ == o.i_; }

   private:
    const TokenList* list_;
    std::size_t i_;
  };
  const_iterator begin() const { return {this, 0}; }
  const_iterator end() const { return {this, size()}; }

  // The lexer's side: where tokens go, and who makes more on request (none
  // when the list is complete).
  TokenStore& store() { return *store_; }
  void set_source(std::unique_ptr<TokenSource> source) {
    source_ = std::move(source);
    refresh();
  }
  // Makes every token there is to make.
  void finish() const {
    if (!store_->ended) reach(static_cast<std::size_t>(-1) >> 1);
  }

 private:
  // Makes tokens until token i exists or the list ends; whether it exists.
  bool reach(std::size_t i) const;
  const Token& at(std::size_t i) const {
    return blocks_[i >> TokenStore::block_bits].get()[i & (TokenStore::block_size - 1)];
  }
  void refresh() const {
    blocks_ = store_->blocks.data();
    count_ = store_->count;
  }

  std::unique_ptr<TokenStore> store_;
  std::unique_ptr<TokenSource> source_;
  mutable const std::unique_ptr<Token[]>* blocks_ = nullptr;
  mutable std::size_t count_ = 0;
};

}  // namespace ycc
