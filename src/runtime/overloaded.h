#pragma once

namespace runtime {

/// Several lambdas as one function object, each for its own alternative: std::visit(Overloaded{...},
/// variant).
template <typename... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace runtime
