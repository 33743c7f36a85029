// The way of a statement: parsed, bound, translated.
#include "jet/sql/compile.h"

#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/crosstab.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

std::string translate(const bound::Query& query) {
  return Translator().query(query, false);
}

/// Binds and translates the body of one statement.
class Compilation {
 public:
  Compilation(const Schema& schema, const Options& options)
      : context_(schema, translate, options.answers), options_(options) {}

  Statement run(tree::Statement statement) {
    for (const tree::ParameterDeclaration& parameter : statement.parameters) context_.declare(parameter);
    return std::visit([&](auto& body) { return compileBody(body); }, statement.body);
  }

 private:
  Statement compileBody(const tree::Query& tree) {
    const bound::Query query = bindQuery(context_, nullptr, tree);
    RowStatement result = finish(RowStatement::Kind::Select, translator_.query(query, options_.withRowKeys));
    for (const bound::Item& item : query.parts.front().items) {
      ResultColumn column{item.name, item.value.type, item.sourceTable, item.sourceColumn, {}};
      if (item.source) column.table = context_.tableOf(*item.source);
      result.columns.push_back(std::move(column));
    }
    result.rowKeys = translator_.rowKeys();
    return result;
  }

  Statement compileBody(const tree::SelectInto& tree) {
    if (!tree.in.empty()) throw SyntaxError(ExternalDatabase, tree.in, tree.table.place.position);
    options_.withRowKeys = false;
    return SelectInto{tree.table.text, std::get<RowStatement>(compileBody(tree.query))};
  }

  Statement compileBody(tree::Transform& tree) {
    options_.withRowKeys = false;
    return compileBody(crosstab(context_, std::move(tree)));
  }

  Statement compileBody(const tree::Execute& tree) {
    const std::size_t position = tree.query.place.position;
    const auto text = context_.schema().findAction(tree.query.text);
    if (!text) throw SyntaxError(UnknownTable, tree.query.text, position);
    return context_.withinQuery(tree.query.text, position, [&] {
      tree::Statement statement = parse(*text);
      context_.setArguments(tree.arguments);
      Statement result = run(std::move(statement));
      context_.checkArguments(position);
      return result;
    });
  }

  Statement compileBody(const tree::Update& tree) {
    const bound::Update update = Binder(context_, nullptr).update(tree);
    return change(RowStatement::Kind::Update, translator_.update(update));
  }

  Statement compileBody(const tree::Delete& tree) {
    const bound::Delete deletion = Binder(context_, nullptr).deletion(tree);
    return change(RowStatement::Kind::Delete, translator_.deletion(deletion));
  }

  Statement compileBody(const tree::Insert& tree) {
    const bound::Insert insert = Binder(context_, nullptr).insert(tree);
    return change(RowStatement::Kind::Insert, translator_.insert(insert));
  }

  template <class Definition>
  Statement compileBody(const Definition& tree) {
    return bindDefinition(tree);
  }

  RowStatement change(RowStatement::Kind kind, Translator::Change change) const {
    RowStatement result = finish(kind, std::move(change.sql));
    result.steps = std::move(change.steps);
    return result;
  }

  RowStatement finish(RowStatement::Kind kind, std::string sql) const {
    return {kind,
            std::move(sql),
            context_.parameters(),
            {},
            context_.tables(),
            0,
            {},
            context_.mayReadAnyTable(),
            context_.columnsFromRows()};
  }

  Context context_;
  Options options_;
  Translator translator_;
};

}  // namespace

Statement compile(std::string_view text, const Schema& schema, const Options& options) {
  return Compilation(schema, options).run(parse(text));
}

std::string compileRule(std::string_view text, const file::TableDefinition& table, const file::Column* column,
                        const Schema& schema) {
  try {
    Context context(schema, translate);
    return Translator().rule(
        Binder(context, nullptr).rule(parseRule(text, column ? column->name : std::string()), table));
  } catch (const SyntaxError& error) {
    throw SyntaxError(error.number(),
                      error.description() + " - regola di convalida " + table.name +
                          (column ? "." + column->name : std::string()) + ": " + std::string(text),
                      error.position());
  }
}

}  // namespace jet::sql
