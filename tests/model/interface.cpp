#include "interface.h"

#include <stdexcept>

namespace model {

namespace {

bool isMatrixProduct(const Name& name)
{
    return name.root == Root::Mul && name.codes[0].kind == 'm' && name.codes[1].kind == 'm';
}

bool isMatrixVectorProduct(const Name& name)
{
    return name.root == Root::Mul && name.codes[0].kind == 'm' && name.codes[1].kind == 'v';
}

bool hasDenseDestination(Root root)
{
    switch (root) {
    case Root::DotProduct:
    case Root::L2Norm:
    case Root::Trace:
    case Root::FrobNorm:
    case Root::Det:
    case Root::Extract:
        return true;
    default:
        return false;
    }
}

bool isSolve(Root root)
{
    return root == Root::LUBackSubst || root == Root::QRBackSubst;
}

std::vector<Form> gaxpyForms(const Name& name)
{
    const bool array = name.codes[0].array;
    std::vector<Form> list = {{.base = "src1"}};
    for (const char* base : {"src2", "src3", "dst"})
        list.push_back({.base = base, .matrix = false, .array = array});
    for (Form& form : list)
        form.layout = name.layout;
    return list;
}

// The sources: `src` when there is one, `src1` and `src2` when there are two.
std::vector<Form> sourceForms(const Name& name)
{
    std::vector<Form> list;
    for (const Code& code : name.codes) {
        if (code.kind != 'c')
            list.push_back({.base = "src" + std::to_string(list.size() + 1),
                            .matrix = code.kind == 'm',
                            .array = code.array,
                            .transposed = code.transposed,
                            .layout = name.layout});
    }
    if (list.size() == 1)
        list[0].base = "src";
    if (isSolve(name.root) && !list[0].array && list[1].array)
        list[0].idleStride0 = !isTable(name.layout);
    return list;
}

Form destinationForm(const Name& name)
{
    Form form{.base = "dst", .array = name.anyArray(), .dense = hasDenseDestination(name.root)};
    form.layout = name.destinationLayout;
    form.matrix = name.codes[0].kind == 'm' && !isMatrixVectorProduct(name) && !isSolve(name.root);
    return form;
}

class Listing
{
public:
    explicit Listing(const Name& name) : name_(name) {}

    void operand(const Form& form)
    {
        add(form.base, Kind::pointer);
        if (form.dense)
            return;
        if (isTable(form.layout)) {
            add(form.base + "Shift");
            if (form.array && form.layout == Layout::stridedPointer)
                add(form.base + "Stride0");
            return;
        }
        if (form.array && isList(form.layout))
            add(form.base + "Shift");
        else if (form.array || form.idleStride0)
            add(form.base + "Stride0");
        if (form.matrix)
            add(form.base + "Stride1");
        if (isStrided(form.layout))
            add(form.base + "Stride2");
    }

    void value(const std::string& text)
    {
        add(text, name_.type == Type::f32 ? Kind::value32f : Kind::value64f);
    }

    void pointer(const std::string& text) { add(text, Kind::pointer); }

    // Sizes are dropped by a name that fixes them.
    void sizes(const std::vector<std::string>& names)
    {
        for (const std::string& size : names) {
            if (name_.general())
                add(size);
        }
    }

    void count()
    {
        if (takesCount(name_))
            add("count");
    }

    std::vector<Parameter> take() { return std::move(list_); }

private:
    void add(const std::string& text, Kind kind = Kind::word) { list_.push_back({text, kind}); }

    const Name& name_;
    std::vector<Parameter> list_;
};

// Roots whose sizes follow the operand that they measure.
bool sizesFollowSource(const Name& name)
{
    switch (name.root) {
    case Root::Transpose:
    case Root::Trace:
    case Root::FrobNorm:
    case Root::Det:
    case Root::Invert:
        return true;
    default:
        return isMatrixProduct(name) || isMatrixVectorProduct(name);
    }
}

// What stands behind the first source and is neither an operand nor a size.
void extras(Listing& listing, const Name& name)
{
    switch (name.root) {
    case Root::LUDecomp:
    case Root::LUBackSubst:
        listing.pointer("rowIndex");
        break;
    case Root::QRDecomp:
    case Root::QRBackSubst:
        listing.pointer("buffer");
        break;
    case Root::Det:
    case Root::Invert:
        if (name.general())
            listing.pointer("buffer");
        break;
    case Root::Saxpy:
        listing.value("value");
        break;
    case Root::LComb:
        listing.value("value1");
        break;
    default:
        if (name.codes.back().kind == 'c' || name.codes.front().kind == 'c')
            listing.value("value");
        break;
    }
}

// The sizes that stand behind an operand of a root that has them there.
std::vector<std::string> sizesBehind(const Name& name, const std::string& base)
{
    std::vector<std::string> list;
    for (const std::string& size : sizeNames(name)) {
        const bool numbered = size.starts_with("src");
        if (numbered ? size.starts_with(base) : base == "src")
            list.push_back(size);
    }
    return list;
}

} // namespace

std::vector<Form> forms(const Name& name)
{
    if (name.root == Root::Gaxpy)
        return gaxpyForms(name);
    std::vector<Form> list;
    if (name.root != Root::LoadIdentity)
        list = sourceForms(name);
    list.push_back(destinationForm(name));
    return list;
}

std::vector<std::string> sizeNames(const Name& name)
{
    if (isMatrixProduct(name))
        return {"src1Width", "src1Height", "src2Width", "src2Height"};
    if (isMatrixVectorProduct(name))
        return {"src1Width", "src1Height", "src2Length"};
    switch (name.root) {
    case Root::Trace:
    case Root::Det:
    case Root::Invert:
    case Root::LUDecomp:
    case Root::LUBackSubst:
        return {"order"};
    case Root::Gaxpy:
        return {"width", "height"};
    case Root::CrossProduct:
        return {};
    default:
        break;
    }
    if (name.codeText.find('m') != std::string::npos)
        return {"width", "height"};
    return {"length"};
}

bool takesCount(const Name& name)
{
    return name.anyArray();
}

std::vector<Parameter> parameters(const Name& name)
{
    Listing listing(name);
    const std::vector<Form> operands = forms(name);
    const bool behind = sizesFollowSource(name);
    for (std::size_t i = 0; i < operands.size(); ++i) {
        listing.operand(operands[i]);
        if (behind)
            listing.sizes(sizesBehind(name, operands[i].base));
        if (i == 0 && name.root != Root::LoadIdentity)
            extras(listing, name);
        if (i == 1 && name.root == Root::LComb)
            listing.value("value2");
    }
    if (!behind)
        listing.sizes(sizeNames(name));
    listing.count();
    return listing.take();
}

} // namespace model
