"""C++ sources as text: what of a file is code that runs, where an operand begins and ends."""

import bisect
import re

# What looks like code and is none: comments, texts, characters, lines of the preprocessor.
NO_CODE = re.compile(
    r"""//[^\n]* | /\*.*?\*/ | R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)" | "(?:\\.|[^"\\\n])*"
      | (?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+' | ^[ \t]*\#(?:\\\n|[^\n])*""",
    re.S | re.M | re.X)

TOKEN = re.compile(
    r"[A-Za-z_]\w*|\d[\w.']*|->|::|<=>|<<=|>>=|[-+*/%&|^]=|==|!=|<=|>=|&&|\|\||<<|>>|\+\+|--|\S")

# Binary operators, the tightest highest. clang-format sets blanks around them and around nothing
# else that looks like them (a template's brackets, an address, a sign).
PRECEDENCE = {"*": 10, "/": 10, "%": 10, "+": 9, "-": 9, "<<": 8, ">>": 8,
              "<": 7, "<=": 7, ">": 7, ">=": 7, "==": 6, "!=": 6, "&": 5, "^": 4, "|": 4,
              "&&": 3, "||": 2, "?": 1, ":": 1}
for _assignment in ("=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="):
    PRECEDENCE[_assignment] = 1

STATEMENT_WORDS = {"return", "case", "else", "throw", "do", "goto"}

# The text before a `{` that opens statements: the head of a function, a lambda or a condition.
HEAD_OF_CODE = re.compile(
    r"(\)\s*(const|noexcept|override|final|mutable|->\s*[\w:<>*&\s]+|\s)*|\]|\belse|\bdo|\btry)$")
HEAD_OF_SCOPE = re.compile(r"\b(namespace|class|struct|union|enum)\b")

# Statements whose faults the compiler, a reader of the log or nobody at all would see.
NO_STATEMENT = re.compile(
    r"\b(constexpr|consteval|static_assert|template|using|case|default|VerificaInvariante|"
    r"reserve|shrink_to_fit|qWarning|qDebug)\b")
# What only an eye can judge: distances inside a window, and which part of it grows.
LOOKS = re.compile(r"(setContentsMargins|setSpacing|addSpacing|addStretch|set\w*Stretch\w*)\(|"
                   r"add(Widget|Layout)\(\w+, \d+(, Qt::\w+)?\)")


def without_texts(source):
    """The source with all that is no code blanked out, every place where it was."""
    def blank(match):
        text = match.group()
        if text[0] in "\"'R":
            return text[0] + re.sub(r"[^\n]", "_", text[1:-1]) + text[-1]
        return re.sub(r"[^\n]", " ", text)
    return NO_CODE.sub(blank, source)


class Source:
    """A source file with its tokens and what each of them belongs to."""

    def __init__(self, text):
        self.text = text
        self.code = without_texts(text)
        self.tokens = [(m.start(), m.group()) for m in TOKEN.finditer(self.code)]
        self.places = [place for place, _ in self.tokens]
        self.lines = [0] + [m.end() for m in re.finditer("\n", text)]
        self.runs = self._what_runs()

    def line_of(self, place):
        return bisect.bisect_right(self.lines, place)

    def line_text(self, line):
        end = self.lines[line] if line < len(self.lines) else len(self.text)
        return self.text[self.lines[line - 1]:end].strip()

    def token_at(self, place):
        return bisect.bisect_left(self.places, place)

    def _what_runs(self):
        """For each token whether it stands among statements."""
        kinds, runs = [], []
        head = 0  # where the text before the next brace begins
        for place, token in self.tokens:
            runs.append("code" in kinds)
            if token == "{":
                kinds.append(self._kind(self.code[head:place].strip(), kinds))
            elif token == "}" and kinds:
                kinds.pop()
            if token in "{};":
                head = place + 1
        return runs

    @staticmethod
    def _kind(head, kinds):
        if HEAD_OF_CODE.search(head):
            return "code"
        if HEAD_OF_SCOPE.search(head) and "(" not in head:
            return "scope"
        # Behind a brace: the body of a constructor, a block, or one row of a table.
        return "code" if not head and kinds and kinds[-1] != "values" else "values"

    def statement_around(self, index):
        """The code from behind the `;` or brace before a token to the one behind it."""
        first = index
        while first > 0 and self.tokens[first - 1][1] not in ";{}":
            first -= 1
        last = index
        while last < len(self.tokens) - 1 and self.tokens[last][1] not in ";{}":
            last += 1
        return self.code[self.tokens[first][0]:self.tokens[last][0]]

    def worth(self, index):
        statement = self.statement_around(index)
        line = self.line_text(self.line_of(self.places[index]))
        return (self.runs[index] and not NO_STATEMENT.search(statement)
                and not LOOKS.search(line))

    def is_binary(self, index):
        place, token = self.tokens[index]
        end = place + len(token)
        return (token in PRECEDENCE and self.code[place - 1] in " \n"
                and self.code[end:end + 1] in (" ", "\n"))

    def _ends_block(self, index):
        place, token = self.tokens[index]
        return token == "}" and self.code[place + 1:place + 2] == "\n"

    def left_operand(self, index):
        """Where the left operand of the binary operator at a token begins, as a place."""
        rank, depth, start = PRECEDENCE[self.tokens[index][1]], 0, index
        for i in range(index - 1, -1, -1):
            token = self.tokens[i][1]
            if depth == 0 and (token in ("(", "[", "{", ";", ",") or token in STATEMENT_WORDS
                               or self._ends_block(i)
                               or self.is_binary(i) and PRECEDENCE[token] < rank):
                break
            depth += (token in ")]}") - (token in "([{")
            start = i
        return self.places[start]

    def right_operand(self, index):
        """Where the right operand of the binary operator at a token ends, as a place."""
        rank, depth, end = PRECEDENCE[self.tokens[index][1]], 0, index
        for i in range(index + 1, len(self.tokens)):
            token = self.tokens[i][1]
            if depth == 0 and (token in (")", "]", "}", ";", ",")
                               or self.is_binary(i) and PRECEDENCE[token] <= rank):
                break
            depth += (token in "([{") - (token in ")]}")
            end = i
        return self.places[end] + len(self.tokens[end][1])

    def closing(self, index):
        """The token that closes the bracket at a token."""
        depth = 0
        for i in range(index, len(self.tokens)):
            depth += (self.tokens[i][1] in "([{") - (self.tokens[i][1] in ")]}")
            if depth == 0:
                return i
        return None
