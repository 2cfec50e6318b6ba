produkt x
product "a
expect "b"c
ÿ
expct closd
key +
expect count conflicts 9999999999
document width 1.
restart mode
restart
mode 9
