// An MFInt32 field of a list of numbers.

function integers(list) {
  var field = new MFInt32();
  field.length = list.length;
  for (var i = 0; i < list.length; ++i) field[i] = list[i];
  return field;
}
