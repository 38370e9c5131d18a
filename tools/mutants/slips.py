"""Finds the places of C++ sources where a hand may slip, and what is written there then.

Works on tokens, in the layout that clang-format gives the tree: binary operators stand between
blanks, the brackets of templates do not. What is wrong all the same does not compile, and then
another place is taken.

Texts and the places of controls are left alone: only a copy of them could tell.
"""

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Slip:
    """A change of one place: `source[start:end]` becomes `text`."""

    line: int  # from 1
    kind: str
    start: int
    end: int
    text: str

    def applied_to(self, source):
        return source[: self.start] + self.text + source[self.end :]


@dataclass
class Token:
    kind: str  # word, number, text, char or op
    text: str
    start: int
    end: int
    line: int
    scope: str = ""  # of what it is part: file, type, block, list, or parentheses in these two
    partner: int = -1  # the index of the bracket that belongs to it


TOKEN = re.compile(
    r"""(?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ ]*\#(?:[^\n\\]|\\.)*)
      | (?P<text>(?:u8|[uUL])?(?:R"(?P<fence>[^(]*)\(.*?\)(?P=fence)"|"(?:[^"\\\n]|\\.)*"))
      | (?P<char>'(?:[^'\\\n]|\\.)+')
      | (?P<number>\.?\d(?:[eEpP][+-]|'(?=\w)|[\w.])*)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<op><=>|<<=|>>=|->\*?|\.\.\.|::|\+\+|--|<<|[-+*/%&|^<>=!]=|&&|\|\||.)
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

CLOSING = {"(": ")", "[": "]", "{": "}"}
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
SWAPPED = {
    "comparison": {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="},
    "sign": {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=",
             "*=": "+=", "/=": "*=", "|": "&", "&": "|", "|=": "&=", "&=": "|="},
    "condition": {"&&": "||", "||": "&&"},
}
# Calls that mean the same with their arguments swapped.
SYMMETRIC = {"min", "max", "checkedAdd", "checkedMultiply"}
# What a statement that is an expression does not begin with.
NO_EXPRESSION = set(
    """alignas assert auto case catch class const constexpr default do else enum explicit extern
    for friend goto if inline namespace private protected public static static_assert struct
    switch template try typedef typename union using virtual while""".split()
)


def tokens_of(source):
    tokens = []
    for match in TOKEN.finditer(source):
        kind = match.lastgroup if match.lastgroup != "fence" else "text"
        if kind != "skip":
            line = source.count("\n", 0, match.start()) + 1
            tokens.append(Token(kind, match.group(), match.start(), match.end(), line))
    match_brackets(tokens)
    return tokens


def match_brackets(tokens):
    """Gives brackets their partners and all tokens their scopes."""
    scopes, open_brackets = ["file"], []
    for index, token in enumerate(tokens):
        token.scope = scopes[-1]
        if token.kind != "op":
            continue
        if token.text in CLOSING:
            open_brackets.append(index)
            if token.text == "{":
                scopes.append(scope_behind(tokens, index))
            elif scopes[-1] in ("block", "list"):
                scopes.append("parentheses")
            else:
                scopes.append(scopes[-1])
        elif token.text in CLOSING.values() and open_brackets:
            token.partner = open_brackets.pop()
            tokens[token.partner].partner = index
            scopes.pop()
            token.scope = scopes[-1]


def scope_behind(tokens, index):
    """What the brace at `index` opens."""
    head = index
    while head > 0 and tokens[head - 1].text not in (";", "{", "}"):
        head -= 1
    words = [token.text for token in tokens[head:index]]
    before = tokens[index - 1].text if index else ""
    if "namespace" in words:
        return "file"
    if "(" not in words and {"class", "struct", "enum", "union"} & set(words):
        return "type"
    if before in (")", "]", ";", "}", ":", "const", "else", "do", "try", "mutable", "noexcept",
                  "override"):
        return "block"
    if before == "{":
        return tokens[index].scope
    if "->" in words and words[words.index("->") - 1] == ")" and before not in ("=", "(", ","):
        return "block"
    return "list" if words else "block"


def slips_of(source):
    """All slips that the text of a source file has room for."""
    tokens = tokens_of(source)
    passed_over = set()
    for index, token in enumerate(tokens):
        if token.text in ("assert", "static_assert", "operator", "template", "place"):
            passed_over.update(range(index, end_of_what_is_passed_over(tokens, index)))
    slips = []
    for index, token in enumerate(tokens[:-1]):
        if index not in passed_over and index > 0:
            for find in (operators, constants, conditions, statements, arguments):
                slips += find(source, tokens, index)
    return slips


def end_of_what_is_passed_over(tokens, index):
    """Of an assertion, of a control's place, or of a template's or operator's head."""
    end = index + 1
    opening = index + 2 if tokens[index].text == "place" else index + 1
    if opening < len(tokens) and tokens[opening].text in ("(", "{"):
        return max(tokens[opening].partner, end)
    while tokens[index].text in ("operator", "template") and tokens[end].line == tokens[index].line:
        end += 1
        if end == len(tokens) or tokens[end].text == "{":
            break
    return end


def operators(source, tokens, index):
    token, before, behind = tokens[index], tokens[index - 1], tokens[index + 1]
    if token.kind == "word" and token.text in ("min", "max") and behind.text == "(":
        yield Slip(token.line, "comparison", token.start, token.end,
                   "max" if token.text == "min" else "min")
    if token.kind != "op":
        return
    is_binary = source[token.start - 1].isspace() and source[token.end].isspace()
    joins_text = token.text in ("+", "+=") and "text" in (before.kind, behind.kind)
    for kind, others in SWAPPED.items():
        if is_binary and token.text in others and not joins_text:
            yield Slip(token.line, kind, token.start, token.end, others[token.text])
    if token.text in ("++", "--"):
        yield Slip(token.line, "sign", token.start, token.end,
                   "--" if token.text == "++" else "++")
    is_joined = not is_binary and behind.start == token.end
    is_first = before.kind == "op" and before.text not in (")", "]", "}") or before.text == "return"
    if token.text == "-" and is_joined and is_first:
        yield Slip(token.line, "sign", token.start, token.end, "")
    if token.text == "!" and is_joined:
        yield Slip(token.line, "condition", token.start, token.end, "")


def constants(source, tokens, index):
    token = tokens[index]
    if token.text in ("true", "false"):
        yield Slip(token.line, "constant", token.start, token.end,
                   "false" if token.text == "true" else "true")
    elif token.kind == "number":
        for other in other_numbers(token.text):
            yield Slip(token.line, "constant", token.start, token.end, other)
    elif token.kind == "char" and len(token.text) == 3:
        other = chr(ord(token.text[1]) + 1)
        if other not in "'\\":
            yield Slip(token.line, "constant", token.start, token.end, f"'{other}'")


def other_numbers(text):
    """One less and one more, or, of longer numbers, one with another digit."""
    if re.fullmatch(r"\d", text):
        return [str(int(text) + 1)] + ([str(int(text) - 1)] if text != "0" else [])
    is_hex = text[:2] in ("0x", "0X")
    digits = [place for place, letter in enumerate(text)
              if letter.isdigit() and (place > 1 or not is_hex)]
    if not digits:
        return []
    place = digits[len(digits) // 2]
    return [text[:place] + str((int(text[place]) + 1) % 10) + text[place + 1 :]]


def conditions(source, tokens, index):
    token, behind = tokens[index], tokens[index + 1]
    if token.text == "?" and token.kind == "op":
        yield Slip(token.line, "condition", token.start, token.end, "|| true ?")
        yield Slip(token.line, "condition", token.start, token.end, "&& false ?")
    if token.text not in ("if", "while") or behind.text != "(":
        return
    first = index + 2
    for inside in range(first, behind.partner):
        if tokens[inside].text == ";":
            first = inside + 1
    if any(inside.text == "=" for inside in tokens[first : behind.partner]):
        return  # it declares what it asks for
    start, end = tokens[first].start, tokens[behind.partner].start
    text = source[start:end]
    yield Slip(token.line, "condition", start, end, f"!({text})")
    yield Slip(token.line, "condition", start, end, f"({text}) && false")
    if token.text == "if":
        yield Slip(token.line, "condition", start, end, f"({text}) || true")


def statements(source, tokens, index):
    """Dropped ones: what is only called or assigned, thrown, or ends a loop or a function."""
    token, before = tokens[index], tokens[index - 1]
    begins = token.scope == "block" and (
        before.text in (";", "{", "}", "else", "do") or before.text == ":" and is_label(tokens, index)
        or before.text == ")" and tokens[before.partner - 1].text in ("if", "for", "while"))
    is_operand = token.kind == "word" or token.text in ("*", "(", "++", "--")
    if not begins or not is_operand or token.text in NO_EXPRESSION:
        return
    end = index
    while tokens[end].text != ";":
        if tokens[end].text == "reserve":
            return  # it only makes the program faster
        if tokens[end].text in CLOSING:
            end = tokens[end].partner
        end += 1
        if end >= len(tokens) or tokens[end].text in CLOSING.values():
            return
    is_result = token.text == "return" and end > index + 1
    if not is_result and not is_declaration(tokens, index):
        yield Slip(token.line, "statement", token.start, tokens[end].end, ";")


def is_label(tokens, index):
    """Whether the colon in front of `index` ends a label."""
    line = tokens[index - 1].line
    first = index - 1
    while first > 0 and tokens[first - 1].line == line:
        first -= 1
    return tokens[first].text in ("case", "default")


def is_declaration(tokens, index):
    """Whether a name stands behind a type."""
    if tokens[index].kind != "word" or tokens[index].text in ("throw", "delete", "co_return"):
        return False
    while True:
        behind = tokens[index + 1]
        if behind.text in ("::", ".", "->"):
            index += 2
        elif behind.text in ("(", "["):
            index = behind.partner
        elif behind.text == "<" and behind.start == tokens[index].end:
            while tokens[index].text != ">":
                index += 1
        else:
            return behind.kind == "word" or behind.text in ("*", "&", "&&", "{")


def arguments(source, tokens, index):
    """Two neighbouring arguments of a call that change places."""
    token, before = tokens[index], tokens[index - 1]
    if token.text != "(" or token.scope in ("file", "type") or before.kind != "word":
        return
    if before.text in SYMMETRIC or before.text in ("if", "for", "while", "switch", "catch"):
        return
    bounds, inside = [index], index + 1
    while inside < token.partner:
        if tokens[inside].text in CLOSING:
            inside = tokens[inside].partner
        elif tokens[inside].text == ",":
            bounds.append(inside)
        inside += 1
    bounds.append(token.partner)
    for left, middle, right in zip(bounds, bounds[1:], bounds[2:]):
        start, end = tokens[left + 1].start, tokens[right - 1].end
        first = source[start : tokens[middle - 1].end]
        second = source[tokens[middle + 1].start : end]
        if first != second and not first.endswith("begin()"):
            yield Slip(tokens[left + 1].line, "argument", start, end, f"{second}, {first}")
