"""The kinds of faults: each finds its places in a source and says what stands there then.

What is put in place holds both, what was and the fault, and chooses as it runs: `FAULT` is true
while that fault is switched on. So one build holds all faults.
"""

import dataclasses
import re

from faults.source_text import PRECEDENCE

OTHER_OPERATOR = {
    "boundary": {"<": "<=", "<=": "<", ">": ">=", ">=": ">"},
    "equality": {"==": "!=", "!=": "=="},
    "logic": {"&&": "||", "||": "&&"},
    "arithmetic": {"+": "-", "-": "+", "*": "+", "/": "*", "%": "/", "+=": "-=", "-=": "+="},
}
OTHER_CALL = {"std::min": "std::max", "std::max": "std::min", "front": "back", "back": "front",
              "find": "rfind", "rfind": "find", "push_back": "push_front",
              "lower_bound": "upper_bound", "upper_bound": "lower_bound"}
OTHER_VALUE = {"true": "false", "false": "true", "Vero": "Falso", "Falso": "Vero"}

# A call or an assignment that fills its statement; a declaration has a blank before either.
WHOLE_STATEMENT = re.compile(r"(?:(?:\+\+|--)?[\w:.\->*]+(?:\[[^;]*\])?(?:\([^;]*?\))*"
                             r"(?:(?:\.|->)[\w:]+\([^;]*\))*)(?: [-+|&]?= [^;]+|\([^;]*\)|)$")
NOT_LEFT_OUT = re.compile(r"^(return|break|continue|throw|goto|else|if|for|while|do|switch|delete|"
                          r"default|case|public|private|protected|typedef)\b")
# What an empty return gives anyway, and what has a kind of its own.
NOTHING = {"false", "0", "nullptr", "{}", "Falso", "std::nullopt", '""', "std::string()", "true",
           "Vero"}


@dataclasses.dataclass
class Place:
    """A fault that a source could have: the code from `start` to `end` becomes `changed`."""
    kind: str
    start: int
    end: int
    changed: str  # with FAULT for the switch
    shown: str    # what the fault reads like, empty for nothing at all


def one_line(text):
    return " ".join(text.split())


def other_operators(source):
    for index, (place, token) in enumerate(source.tokens):
        if token not in PRECEDENCE or not source.is_binary(index) or not source.worth(index):
            continue
        for kind, others in OTHER_OPERATOR.items():
            if token not in others:
                continue
            start, end = source.left_operand(index), source.right_operand(index)
            left = source.text[start:place].strip()
            right = source.text[place + len(token):end].strip()
            if left and right:
                fault = f"{left} {others[token]} {right}"
                yield Place(kind, start, end, f"(FAULT ? ({fault}) : ({left} {token} {right}))",
                            fault)


def numbers(source):
    for index, (place, token) in enumerate(source.tokens):
        if re.fullmatch(r"\d[\d']*", token) and source.worth(index):
            more = str(int(token.replace("'", "")) + 1)
            yield Place("number", place, place + len(token), f"(FAULT ? {more} : {token})", more)


def conditions(source):
    for index, (_, token) in enumerate(source.tokens):
        if token not in ("if", "while") or not source.worth(index):
            continue
        if source.tokens[index + 1][1] != "(":
            continue
        close = source.closing(index + 1)
        start, end = source.places[index + 1] + 1, source.places[close]
        inside = source.code[start:end]
        if ";" in inside or re.search(r" = ", inside):
            continue
        condition = source.text[start:end]
        yield Place("opposite", start, end, f"FAULT != static_cast<bool>({condition})",
                    f"!({condition})")
        if token == "if":
            yield Place("never", start, end, f"!FAULT && ({condition})", "false")
            yield Place("always", start, end, f"FAULT || ({condition})", "true")


def negations(source):
    for index, (place, token) in enumerate(source.tokens):
        if token == "!" and source.code[place + 1:place + 2] not in ("=", " ") \
                and source.worth(index):
            yield Place("not", place, place + 1, "FAULT != !", "")


def statements(source):
    for index, (place, token) in enumerate(source.tokens[1:], 1):
        if source.tokens[index - 1][1] not in (";", "{", "}", ")", "else", ":") \
                or not source.runs[index] or NOT_LEFT_OUT.match(token):
            continue
        if "\n" not in source.code[source.places[index - 1]:place]:
            continue
        end = source.code.find(";", place)
        statement = source.code[place:end]
        head = re.split(r"[(=]", one_line(statement), maxsplit=1)[0].strip()
        if end < 0 or "{" in statement or " " in head or not source.worth(index) \
                or not WHOLE_STATEMENT.match(one_line(statement)):
            continue
        text = source.text[place:end]
        yield Place("left out", place, end + 1, f"{{ if (!FAULT) {text}; }}", "")


def returns(source):
    for index, (place, token) in enumerate(source.tokens):
        if token != "return" or not source.worth(index):
            continue
        end = source.code.find(";", place)
        value = source.text[place + len(token):end].strip()
        if value and value not in NOTHING:
            yield Place("empty return", place, end + 1,
                        f"{{ if (FAULT) return {{}}; return {value}; }}", "return {};")


def values(source):
    for index, (place, token) in enumerate(source.tokens):
        if token in OTHER_VALUE and source.worth(index):
            other = OTHER_VALUE[token]
            yield Place("value", place, place + len(token), f"(FAULT ? {other} : {token})", other)


def jumps(source):
    for index, (place, token) in enumerate(source.tokens):
        other = {"break": "continue", "continue": "break"}.get(token)
        if other and source.runs[index]:
            yield Place("jump", place, place + len(token) + 1,
                        f"{{ if (FAULT) {other}; {token}; }}", other + ";")


def other_calls(source):
    for index, (place, token) in enumerate(source.tokens):
        qualified = source.tokens[index - 1][1] == "::" and source.tokens[index - 2][1] == "std"
        name = "std::" + token if qualified else token
        if name not in OTHER_CALL or not source.worth(index):
            continue
        paren = next((i for i in range(index + 1, min(index + 8, len(source.tokens)))
                      if source.tokens[i][1] == "("), None)
        if paren is None or source.tokens[index + 1][1] not in ("(", "<"):
            continue
        end = source.places[source.closing(paren)] + 1
        if re.match(r"\s*[=!]= [\w:]*npos", source.code[end:]):
            continue  # whether it is there at all, from either end
        start = source.places[index - 2] if qualified else start_of_chain(source, index)
        if start is None:
            continue
        whole, behind = source.text[start:end], source.text[place + len(token):end]
        fault = OTHER_CALL[name] + behind if qualified else \
            source.text[start:place] + OTHER_CALL[name] + behind
        yield Place("call", start, end, f"(FAULT ? {fault} : {whole})", fault)


def start_of_chain(source, index):
    """Where the object begins that a member is called of; none for anything but plain names."""
    i = index
    while source.tokens[i - 1][1] in (".", "->", "::"):
        i -= 2
        if not re.match(r"[A-Za-z_]", source.tokens[i][1]):
            return None
    return source.places[i] if i < index else None


KINDS = (other_operators, numbers, conditions, negations, statements, returns, values, jumps,
         other_calls)


def all_places(source):
    for kind in KINDS:
        yield from kind(source)
