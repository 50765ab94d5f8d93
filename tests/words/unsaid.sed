# Takes away what is the same in every language, and what the toolkit says itself.
s/\bNP[0-9A-Z#]{6,}//g
s/\(\*[^)]*\)//g
s/--[a-z#-]+( (FILE\.pdf|TEXT|K|a#\|letter))?//g
s/numorra-square( (study|complete|puzzle|list|count))?( [A-Z,|.-]+| \[[A-Za-z|-]+\])*//g
s/^[A-H]{4}( \/ [A-H]{4}){3}$//
s/^(X?I{1,3}|I?VI?)$//
s/^order # magic.*//
s/^total #(, (Anna|Bert|(easy|hard), # clues, ))?$//
s/\[options\]|\b(A,B,C,D|FILE|TERM|NAME|GRADE|FORMAT|TEXT|SHELL|RULES|normal|positive|bash|zsh|fish|text|json|csv)\b//g
s/\[\[.*None.*\]\]//
s/\b(Numorra|PDF|PNG|SVG|Esc|Alt\+Left|Alt\+Right)\b//g
s/^(OK|Cancel|Close|Float|Closes the dock widget|Undocks and re-attaches the dock widget)$//
