// The functions of the table as text: names, parameters, calls. For the generator, tests and benchmarks.
#pragma once

#include "frame/grammar.h"

#include <string>
#include <vector>

namespace tenk::tools {

struct Parameter
{
    std::string type; // as declared
    std::string name;
    std::string word;  // the word of the form that brought it
    std::string field; // of an operand's arguments: p, shift, stride0, stride1, stride2
};

struct Function
{
    const Family* family;
    Member member;
    std::string codes; // as in the name
    std::string name;
    std::vector<Parameter> parameters;
    std::string sameAs; // the function whose entry point this is a second name of
};

// All functions of the table but tenkGetLibVersion, in its order.
std::vector<Function> allFunctionsOfTheTable();

// The part of a name behind the operand codes and type that tells the layout, without its underscore.
std::string layoutText(const Member& m);

std::string elementText(const Member& m);

bool isBuilt(const Family& f);
bool isOperandWord(std::string_view word);

} // namespace tenk::tools
