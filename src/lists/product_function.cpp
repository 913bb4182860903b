#include "lists/product_function.h"

#include "lists/list_result.h"
#include "lists/list_walk.h"
#include "lists/running_product.h"

namespace quorvex {

NumberText Product_Function(const List& list) {
  List_Options options;
  Running_Product product;
  Walk_List(list, options, [&](const List_Element& element) {
    product.multiply(element.text, options.msd);
    return Walk::on;
  });
  return Finish_List(product.text(), options);
}

}  // namespace quorvex
