# Repeats a comment before each further declaration of its group: Doxygen gives it to the first alone.
/^ *\/\/\// {
    comment = isInComment ? comment "\n" $0 : $0
    isInComment = 1
    print
    next
}

/^ *(\/\/|#|}|namespace|struct|class|public:|private:)/ || /\/\/\/</ || !NF {
    comment = ""
    isInComment = 0
    wasDeclared = 0
    print
    next
}

{
    if (wasDeclared && comment != "") {
        print comment
    }
    isInComment = 0
    wasDeclared = /;|}/
    print
}
