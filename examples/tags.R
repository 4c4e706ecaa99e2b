# tags.R TABLE: reads a table of `quilltags export --to csv` and counts tags by class and type.
tags <- read.csv(commandArgs(trailingOnly = TRUE)[1], encoding = "UTF-8", na.strings = "",
                 colClasses = c(term = "character", covered = "character", value = "character"))
print(table(tags$class, tags$type))
