#include "front/token_list.h"

#include "diag/diagnostics.h"

namespace ycc {

namespace {

// Tokens kept below the index given back, for the parser's short looks behind.
constexpr std::size_t kept_behind = 64;

}  // namespace

void TokenStore::new_block() {
  if (!spare.empty()) {
    blocks.push_back(std::move(spare.back()));
    spare.pop_back();
  } else {
    blocks.push_back(std::make_unique_for_overwrite<Token[]>(block_size));
  }
}

bool TokenList::reach(std::size_t i) const {
  while (i >= store_->count && !store_->ended && source_) source_->produce(i);
  refresh();
  return i < count_;
}

std::size_t TokenList::index_of(const Token& t) const {
  for (std::size_t b = store_->blocks.size(); b-- > 0;) {
    const Token* first = store_->blocks[b].get();
    if (first && &t >= first && &t < first + TokenStore::block_size)
      return (b << TokenStore::block_bits) + static_cast<std::size_t>(&t - first);
  }
  internal_check_failed("index_of: a token of the list", "yc", __LINE__);
}

void TokenList::give_back_before(std::size_t index) const {
  if (!source_ || index < kept_behind) return;
  std::size_t whole = (index - kept_behind) >> TokenStore::block_bits;  // blocks wholly below
  TokenStore& s = *store_;
  // The last block is being filled: it stays.
  for (std::size_t b = whole; b-- > 0 && b + 1 < s.blocks.size() && s.blocks[b];)
    s.spare.push_back(std::move(s.blocks[b]));
}

}  // namespace ycc
